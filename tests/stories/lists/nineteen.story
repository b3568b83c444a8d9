# A list of nineteen keys never shows a page: one row short of it, the end comes.
films 1 19 Title="Film ##" Format="V" Genre="CO"
sorted
start
click mnuAllVHS
beep
box none "" "End of file!" OK
see Text1(18) "Film 19"
see Text1(19) ""
see state RowCursor 19
see state ListState 0
