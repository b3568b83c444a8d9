# The code MY, asked for in small letters, heads the view with "Mystery".
film 1 Title="Alien" Genre="MY"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "my"
see txtTitle "Alien"
see lblHead "Viewing Files For Mystery  Alphabetically"
see state GenreFilter "MY"
