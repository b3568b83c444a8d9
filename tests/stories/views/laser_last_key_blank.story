# Laser view whose last key is blank: the click that lands on it ends the view at once.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
key Laserpra.Dat "Alien" 1
key Laserpra.Dat "" 2
count Laserpra 2
start
click mnuByLaser
see txtTitle "Alien"
click cmdNext
beep
box warning "ALPHA LASER TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
