# In a new VHS film the pointer over the aspect skips to the colour.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "VHS"
move txtLetter
see focus List6
