# Genre list: later Backs write from the first film on; the Next between them repeats nineteen rows.
films 1 65 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
click cmdNext20
click cmdNext20
see Text1(0) "Film 41"
click cmdPrev20
see Text1(0) "Film 21"
see Text1(19) "Film 40"
see state KeyFilePos 21
see state BackCount 40
click cmdNext20
see Text1(0) "Film 22"
see Text1(19) "Film 41"
see state KeyFilePos 41
click cmdPrev20
see Text1(0) "Film 21"
see Text1(19) "Film 40"
see state BackCount 60
see state KeyFilePos 21
click cmdPrev20
see Text1(0) "Film 01"
see Text1(19) "Film 20"
see state KeyFilePos 1
click cmdNext20
see Text1(0) "Film 02"
see Text1(19) "Film 21"
click cmdPrev20
see Text1(0) "Film 01"
see Text1(19) "Film 20"
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
