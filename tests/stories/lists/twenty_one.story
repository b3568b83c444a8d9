# A list of twenty-one keys: the last film is alone for a moment, then the end takes the list away.
films 1 21 Title="Film ##" Format="V" Genre="CO"
sorted
start
click mnuAllVHS
see Text1(19) "Film 20"
click cmdNext20
beep
box none "" "End of file!" OK
see Text1(0) "Film 21"
see Text1(1) ""
see state RowCursor 1
