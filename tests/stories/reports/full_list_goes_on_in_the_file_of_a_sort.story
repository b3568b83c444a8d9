# A sort run from the menu within a view keeps the view's place and leaves the tapes' key file open: the full list
# goes on there.
film 1 Title="Alpha" Format="D"
film 2 Title="Beta" Format="V"
film 3 Title="Gamma" Format="D"
sorted
start
click mnuByTitle
see state KeyFilePos 1
click mnuSort
beep
beep
beep
beep
see state KeyFilePos 1
click mnuAll
box question "Reelora Prima Print Program" ANY Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There is 1 Page to print." OK
see page 1 line 5 "  Beta                            (Dir.)                               REC #2"
see page 1 line 12 "  TOTAL FILM(S) IN LIBRARY   1"
