# A jump empties the name of the genre, so that an unknown code has none, and the aspect in front of and behind the
# showing.
film 1 Title="Alien" Genre="SF" Letter="W"
film 2 Title="Brazil" Genre="ZZ" Letter="Z"
film 3 Title="Cabaret" Genre="DR" Letter="P"
start
see txtGenreList "Science Fiction"
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
see txtGenreList ""
see txtLetter ""
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
see txtGenreList "Drama"
see txtLetter "Pan & Scan"
