# The code SI, asked for in small letters, heads the view with "Special Interest".
film 1 Title="Alien" Genre="SI"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "si"
see txtTitle "Alien"
see lblHead "Viewing Files For Special Interest  Alphabetically"
see state GenreFilter "SI"
