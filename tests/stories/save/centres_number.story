# A save centres the number of discs again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtNumReel
see txtNumReel.Alignment left
click mnuSave
see txtNumReel.Alignment centre
