# A view that opens clears no box: letters outside the tables leave the aspect and the genre of the film before.
film 1 Title="Zulu" Letter="W" Genre="DR" Format="L" CLV1="CAV"
film 2 Title="Alien" Letter="Z" Genre="QQ"
film 3 Title="Brazil"
sorted
start
see txtLetter "Wide Screen"
click mnuByTitle
see txtTitle "Alien"
see txtLetter "Wide Screen"
see txtGenreList "Drama"
see txtFormat ""
click cmdSave
see txtLetter "Wide Screen"
see state ViewKind "Title"
