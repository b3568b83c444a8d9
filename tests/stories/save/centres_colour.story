# A save centres the colour again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
see txtColor1.Alignment left
see focus List6
key Enter
click cmdSave
see txtColor1.Alignment centre
