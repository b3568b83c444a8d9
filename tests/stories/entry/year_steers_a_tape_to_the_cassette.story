# In a new VHS film the year that is left steers to the cassette number, whichever way the user goes.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "VHS"
click txtYear
click txtDirector
see focus txtCassNo
see List4.Items
