# VHS view: Back on its first key beeps, says so in the view's own words and resets.
film 1 Title="Zulu" Format="V"
film 2 Title="Alien" Format="V"
film 3 Title="Metropolis" Format="V"
film 4 Title="Nosferatu" Format="L"
sorted
start
click mnuByVHS
click cmdPrevious
beep
box warning "ALPHA VHS TITLE SEARCH" "Beginning of file encounter!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see txtTitle "Zulu"
see frmPage1 "Reelora Prima Record  1/ 4      Title Non Sorted"
click cmdNext
see txtTitle "Alien"
see frmPage1 "Reelora Prima Record  2/ 4      Title Non Sorted"
