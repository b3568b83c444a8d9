# Next in a genre view onto a key whose number is 0 keeps the format and empties the aspect.
film 1 Title="Alien" Genre="SF" Letter="W" Format="X"
film 2 Title="Brazil" Genre="SF" Letter="Z" Format="X"
film 3 Title="Zulu" Genre="WE"
key Titlepra.Dat "Alien" 1
key Titlepra.Dat "Brazil" 2
key Titlepra.Dat "Nobody" 0
count Titlepra 3
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
click cmdNext
see txtTitle "Brazil"
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat "X"
see txtLetter ""
