# DVD view of an empty key file says so under its own title and resets.
film 1 Title="Alien"
film 2 Title="Brazil"
count DVDpra 1
file DVDpra.Dat ""
start
click cmdNext
click mnuByDVD
box warning "ALPHA DVD TITLE SEARCH" "There are No DVD Discs in Library or Files need to Be Sorted" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click mnuByDVD
box warning "ALPHA DVD TITLE SEARCH" "There are No DVD Discs in Library or Files need to Be Sorted" OK
