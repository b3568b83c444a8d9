# Title view with one key, a blank one: it ends while it opens.
film 1 Title="Alien" Format="D"
key Titlepra.Dat "" 1
count Titlepra 1
start
click mnuByTitle
beep
box warning "ALPHA TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
