# The code CO, asked for in small letters, heads the view with "Comedy".
film 1 Title="Alien" Genre="CO"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "co"
see txtTitle "Alien"
see lblHead "Viewing Files For Comedy  Alphabetically"
see state GenreFilter "CO"
