# The code CH, asked for in small letters, heads the view with "Children".
film 1 Title="Alien" Genre="CH"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "ch"
see txtTitle "Alien"
see lblHead "Viewing Files For Children  Alphabetically"
see state GenreFilter "CH"
