# Genre list: Back pages to the first film of the genre; the next Back passes only others on its way to the top and
# writes nothing.
films 1 80 Title="Film ##" Format="V" Genre="DR"
films 31 70 Title="Film ##" Format="V" Genre="CO"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "co"
click cmdNext20
see Text1(19) "Film 70"
click cmdPrev20
see Text1(0) "Film 31"
see Text1(19) "Film 50"
see state KeyFilePos 31
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see Text1(0) "Film 31"
see Text1(19) "Film 50"
