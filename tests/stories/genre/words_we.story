# The code WE, asked for in small letters, heads the view with "Western".
film 1 Title="Alien" Genre="WE"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "we"
see txtTitle "Alien"
see lblHead "Viewing Files For Western  Alphabetically"
see state GenreFilter "WE"
