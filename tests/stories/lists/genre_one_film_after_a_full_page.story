# Genre list: twenty films in one run fill the page; the one left far behind does not make another.
films 1 80 Title="Film ##" Format="V" Genre="DR"
films 31 50 Title="Film ##" Format="V" Genre="CO"
film 80 Title="Film 80" Format="V" Genre="CO"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "co"
see Text1(0) "Film 31"
see Text1(19) "Film 50"
see state KeyFilePos 50
click cmdNext20
beep
box none "" "End of file!" OK
see Text1(0) "Film 80"
see Text1(1) ""
