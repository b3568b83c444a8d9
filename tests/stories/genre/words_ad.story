# The code AD, asked for in small letters, heads the view with "Adult".
film 1 Title="Alien" Genre="AD"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "ad"
see txtTitle "Alien"
see lblHead "Viewing Files For Adult  Alphabetically"
see state GenreFilter "AD"
