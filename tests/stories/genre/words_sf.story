# The code SF, asked for in small letters, heads the view with "Science Fiction".
film 1 Title="Alien" Genre="SF"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "sf"
see txtTitle "Alien"
see lblHead "Viewing Files For Science Fiction  Alphabetically"
see state GenreFilter "SF"
