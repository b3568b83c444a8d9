# The code FO, asked for in small letters, heads the view with "Foreign".
film 1 Title="Alien" Genre="FO"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "fo"
see txtTitle "Alien"
see lblHead "Viewing Files For Foreign  Alphabetically"
see state GenreFilter "FO"
