# The code IN, asked for in small letters, heads the view with "Instructional".
film 1 Title="Alien" Genre="IN"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "in"
see txtTitle "Alien"
see lblHead "Viewing Files For Instructional  Alphabetically"
see state GenreFilter "IN"
