# DVD view with a count of 0 refuses, though there are keys, and resets.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
key DVDpra.Dat "Alien" 2
key DVDpra.Dat "Zulu" 1
count DVDpra 0
start
click cmdNext
click mnuByDVD
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can viewed!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see txtTitle "Zulu"
see frmPage1 "Reelora Prima Record  1/ 2      Title Non Sorted"
