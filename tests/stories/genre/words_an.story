# The code AN, asked for in small letters, heads the view with "Animation".
film 1 Title="Alien" Genre="AN"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "an"
see txtTitle "Alien"
see lblHead "Viewing Files For Animation  Alphabetically"
see state GenreFilter "AN"
