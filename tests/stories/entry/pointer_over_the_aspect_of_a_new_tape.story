# In a new VHS film the pointer over the aspect takes the focus from the title to the colour; in Edit it does not.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtTitle
move txtLetter
see focus txtTitle
click cmdSave
click cmdNew
click txtFormat
pick List3 "VHS"
click txtTitle
see focus txtTitle
move txtLetter
see focus List6
