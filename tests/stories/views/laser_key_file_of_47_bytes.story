# Laser view of a key file of 47 bytes: the end is found behind the film shown, told in the view's box, and resets.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
file Laserpra.Dat "Alien                                   0000001"
count Laserpra 1
start
click mnuByLaser
see txtTitle "Alien"
see state KeyFilePos 1
click cmdNext
beep
box warning "ALPHA LASER TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
