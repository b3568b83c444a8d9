# Genre list of an empty key file: before any key was read the blank key buffer is passed over, and with it the end.
film 1 Title="Film 01" Genre="DR"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
beep
stop "Bad record number"
