# Find By Genre over a genre list is the same kind of view: it continues from the list's position and asks nothing.
films 1 25 Title="Film ##" Genre="SF"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "sf"
click mnuFindGenre
see txtTitle "Film 20"
see state KeyFilePos 20
see state RowCursor 21
see state SearchState 3
