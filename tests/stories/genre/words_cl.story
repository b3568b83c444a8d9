# The code CL, asked for in small letters, heads the view with "Classic".
film 1 Title="Alien" Genre="CL"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "cl"
see txtTitle "Alien"
see lblHead "Viewing Files For Classic  Alphabetically"
see state GenreFilter "CL"
