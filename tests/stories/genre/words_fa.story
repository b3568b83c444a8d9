# The code FA, asked for in small letters, heads the view with "Fantasy".
film 1 Title="Alien" Genre="FA"
film 2 Title="Zulu" Genre="ZZ"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama" "fa"
see txtTitle "Alien"
see lblHead "Viewing Files For Fantasy  Alphabetically"
see state GenreFilter "FA"
