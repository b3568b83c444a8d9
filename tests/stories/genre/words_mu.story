# The code MU, asked for in small letters, heads the view with "Musical".
film 1 Title="Alien" Genre="MU"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "mu"
see txtTitle "Alien"
see lblHead "Viewing Files For Musical  Alphabetically"
see state GenreFilter "MU"
