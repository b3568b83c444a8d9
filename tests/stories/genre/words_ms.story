# The code MS, asked for in small letters, heads the view with "Mystery Suspense".
film 1 Title="Alien" Genre="MS"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "ms"
see txtTitle "Alien"
see lblHead "Viewing Files For Mystery Suspense  Alphabetically"
see state GenreFilter "MS"
