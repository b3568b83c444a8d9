# The code NA, asked for in small letters, heads the view with "Nature".
film 1 Title="Alien" Genre="NA"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "na"
see txtTitle "Alien"
see lblHead "Viewing Files For Nature  Alphabetically"
see state GenreFilter "NA"
