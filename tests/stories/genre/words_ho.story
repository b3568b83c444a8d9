# The code HO, asked for in small letters, heads the view with "Horror".
film 1 Title="Alien" Genre="HO"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "ho"
see txtTitle "Alien"
see lblHead "Viewing Files For Horror  Alphabetically"
see state GenreFilter "HO"
