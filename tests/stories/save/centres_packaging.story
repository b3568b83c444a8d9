# A save centres the packaging again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtPackage
see txtPackage.Alignment left
click mnuSave
see txtPackage.Alignment centre
