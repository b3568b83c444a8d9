# Title view: Next and Back walk both ways along its own keys; only the click past the last one reports the end, and
# record 1 comes back.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
film 3 Title="Metropolis" Format="D"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByTitle
see txtTitle "Alien"
see frmPage1 "Reelora Prima Record  2/ 4      Title Sorted All Formats"
see lblHead "Viewing All Titles Alphabetically"
see state ViewKind "Title"
see state ViewState 2
see state KeyFilePos 1
see state CurrentRecNo 2
see state ScanRecNo 2
see state RecordFound 0
click cmdNext
see txtTitle "Metropolis"
see state KeyFilePos 2
click cmdPrevious
see txtTitle "Alien"
see state KeyFilePos 1
see state NavDirection 0
click cmdNext
click cmdNext
see txtTitle "Nosferatu"
see state KeyFilePos 3
click cmdNext
see txtTitle "Zulu"
see txtFormat "DVD"
see state KeyFilePos 4
see state CurrentRecNo 1
see frmPage1 "Reelora Prima Record  1/ 4      Title Sorted All Formats"
click cmdNext
beep
box warning "ALPHA TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see frmPage1 "Reelora Prima Record  1/ 4      Title Non Sorted"
