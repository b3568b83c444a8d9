# Genre list of an empty key file: it ends at its first key, and the reset takes the grid away.
film 1 Title="Film 01" Genre="DR"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
beep
box none "" "End of file!" OK
see state ViewKind ""
see Text1(0).Visible no
