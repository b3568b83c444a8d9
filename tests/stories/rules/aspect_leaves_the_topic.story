# A step whose film has another aspect and no format leaves the topic of the button; the aspect sets none.
film 1 Title="Alien" Letter="W"
film 2 Title="Brazil" Letter="P"
start
click cmdNext
see txtLetter "Pan & Scan"
see frmPage1.HelpContext 240
