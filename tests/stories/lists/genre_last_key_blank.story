# Genre list whose last key is blank ends without the beep: the step that passes it lands on the end.
films 1 3 Title="Film ##" Genre="DR" Format="D"
key Titlepra.Dat "Film 01" 1
key Titlepra.Dat "Film 02" 2
key Titlepra.Dat "" 3
count Titlepra 3
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
box none "" "End of file!" OK
see Text1(1) "Film 02"
see Text1(2) ""
see state ListState 0
