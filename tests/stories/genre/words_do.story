# The code DO, asked for in small letters, heads the view with "Documentary".
film 1 Title="Alien" Genre="DO"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "do"
see txtTitle "Alien"
see lblHead "Viewing Files For Documentary  Alphabetically"
see state GenreFilter "DO"
