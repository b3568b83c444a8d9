# Genre list: small letters in the record are taken as capitals, leading blanks do not count.
film 1 Title="Film 01" Genre="dr"
film 2 Title="Film 02" Genre=" D"
film 3 Title="Film 03" Genre="CO"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "D"
beep
box none "" "End of file!" OK
see state HitCount 2
