# A click on the number of discs that has the focus already is not refused in view.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtNumReel
click mnuSave
see txtNumReel.Alignment centre
click txtNumReel
see focus txtNumReel
see txtNumReel.Alignment centre
