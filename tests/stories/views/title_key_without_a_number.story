# Title view at a key whose number is 0: no film is read, no message comes, the heading is the view's own and the focus is on the title.
film 1 Title="Alien" Format="D"
key Titlepra.Dat "Nothing" 0
count Titlepra 1
start
click mnuByTitle
see focus txtTitle
see lblHead "    Viewing All Titles Alphabetically"
see txtTitle "Alien"
see state CurrentRecNo 1
see state ScanRecNo 0
see state ViewKind "Title"
see state KeyFilePos 1
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
click cmdNext
beep
box warning "ALPHA TITLE SEARCH" "End of file!" OK
