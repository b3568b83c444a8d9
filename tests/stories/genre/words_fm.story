# The code FM, asked for in small letters, heads the view with "Family".
film 1 Title="Alien" Genre="FM"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "fm"
see txtTitle "Alien"
see lblHead "Viewing Files For Family  Alphabetically"
see state GenreFilter "FM"
