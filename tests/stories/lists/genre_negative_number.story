# Genre list at a key whose number is below 1 stops the program.
film 1 Title="Film 01" Genre="DR"
file Titlepra.Dat "Film 01                                 -1     \r\n"
count Titlepra 1
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
stop "Bad record number"
