# Genre list asked for "zz": nothing contains it; ignoring case.
film 1 Title="Film 01" Genre="CO"
film 2 Title="Film 02" Genre="DO"
film 3 Title="Film 03" Genre="FO"
film 4 Title="Film 04" Genre="CL"
film 5 Title="Film 05" Genre="DR"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "zz"
beep
box none "" "End of file!" OK
see state GenreFilter "ZZ"

see Text1(0) ""
see state RowCursor 0
see state HitCount 0
