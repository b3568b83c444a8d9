# VHS view whose last key is blank: the click that lands on it ends the view at once.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
key VHSpra.Dat "Alien" 1
key VHSpra.Dat "" 2
count VHSpra 2
start
click mnuByVHS
see txtTitle "Alien"
click cmdNext
beep
box warning "ALPHA VHS TITLE SEARCH" "          End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
