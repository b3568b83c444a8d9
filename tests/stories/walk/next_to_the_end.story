# Equal to the count does not end the walk: the slot behind the last is shown, then the message, then record 1.
film 1 Title="Alien" Format="L" Genre="SF"
film 2 Title="Brazil" Format="V" Genre="SF"
start
click cmdNext
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2      Title Non Sorted"
see frmPage1.HelpContext 490
click cmdNext
beep
box warning "" "End of file encountered!" OK
see state CurrentRecNo 1
see txtTitle "Alien"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
