# Genre list chosen again on its first page starts again; after Next it continues from the last row.
films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
see Text1(0) "Film 01"
see Text1(19) "Film 20"
click cmdNext20
see state KeyFilePos 40
click mnuFindAllGenre
beep
box none "" "End of file!" OK
see Text1(0) "Film 40"
see Text1(5) "Film 45"
see Text1(6) ""
