# Genre list whose few films stand near the end: they fill the first rows, then the end comes.
films 1 60 Title="Film ##" Format="V" Genre="DR"
films 50 52 Title="Film ##" Format="V" Genre="CO"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "co"
beep
box none "" "End of file!" OK
see Text1(0) "Film 50"
see Text1(2) "Film 52"
see Text1(3) ""
see state HitCount 3
see state RowCursor 3
see state MatchPos 0
see state KeyFilePos 0
see state GenreFilter "CO"
