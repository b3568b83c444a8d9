# Reset ends a view.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuByVHS
click cmdNext
see state KeyFilePos 2
click cmdReset
see state ViewKind ""
see state KeyFilePos 0
see frmPage1 "Reelora Prima Record  1/ 2      Title Non Sorted"
click cmdNext
see frmPage1 "Reelora Prima Record  2/ 2      Title Non Sorted"
