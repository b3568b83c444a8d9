# DVD view with one key, a blank one: it ends while it opens.
film 1 Title="Alien" Format="D"
key DVDpra.Dat "" 1
count DVDpra 1
start
click mnuByDVD
beep
box warning "ALPHA DVD TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
