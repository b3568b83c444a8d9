# The code AA, asked for in small letters, heads the view with "Action Adventure".
film 1 Title="Alien" Genre="AA"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "aa"
see txtTitle "Alien"
see lblHead "Viewing Files For Action Adventure  Alphabetically"
see state GenreFilter "AA"
