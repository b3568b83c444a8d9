# DVD view at a key whose number is 0: no film is read, no message comes, the heading is the view's own and the focus is on the title.
film 1 Title="Alien" Format="D"
key DVDpra.Dat "Nothing" 0
count DVDpra 1
start
click mnuByDVD
see focus txtTitle
see lblHead "Viewing All DVD Titles Alphabetically"
see txtTitle "Alien"
see state CurrentRecNo 1
see state ScanRecNo 0
see state ViewKind "DVD"
see state KeyFilePos 1
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
click cmdNext
beep
box warning "ALPHA DVD TITLE SEARCH" "End of file!" OK
