# In a new DVD film the pointer over the aspect does nothing.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "DVD"
move txtLetter
see focus txtNumReel
