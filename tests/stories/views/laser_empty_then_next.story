# Next in an empty Laser view goes to position 1, where the end is.
film 1 Title="Alien" Format="D"
key DVDpra.Dat "Alien" 1
count DVDpra 1
count Laserpra 1
file Laserpra.Dat ""
start
click mnuByDVD
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
click cmdNext
beep
box warning "ALPHA LASER TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
