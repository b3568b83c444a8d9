# The button during a new film: the sort misses it, then Reset asks and saves it.
films 1 2 Title="Film #" Format="D"
start
click cmdNew
type "Mirror"
click cmdSort
beep
beep
beep
beep
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." Yes
see film 3 Title "Mirror"
see state TitleCount "2"
see state CurrentRecNo 1
see state RecordCount 3
