# Forty keys, on, back and on again: the pages overlap by nineteen rows, and the last one comes out a row short.
films 1 40 Title="Film ##" Format="V" Genre="CO"
sorted
start
click mnuAllVHS
click cmdNext20
see Text1(19) "Film 40"
click cmdPrev20
see Text1(0) "Film 01"
see Text1(19) "Film 20"
click cmdNext20
see Text1(0) "Film 02"
see Text1(19) "Film 21"
click cmdNext20
beep
box none "" "End of file!" OK
see Text1(0) "Film 22"
see Text1(18) "Film 40"
see Text1(19) ""
