# The view's name that the menu leaves walks nowhere: Next shows the film again, Back goes down by number.
films 1 3 Title="Film #" Format="D"
start
click cmdNext
see state CurrentRecNo 2
click mnuSort
beep
beep
beep
beep
click cmdNext
see state CurrentRecNo 2
see txtTitle "Film 2"
see frmPage1 "Reelora Prima Record  2/ 3"
click cmdPrevious
see state CurrentRecNo 1
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
click cmdNext
see state CurrentRecNo 1
see state ViewKind "DVDpra"
