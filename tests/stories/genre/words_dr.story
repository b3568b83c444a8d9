# The code DR, asked for in small letters, heads the view with "Drama".
film 1 Title="Alien" Genre="DR"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "dr"
see txtTitle "Alien"
see lblHead "Viewing Files For Drama  Alphabetically"
see state GenreFilter "DR"
