# In a new VHS film a press on an aspect takes it, and the colour is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "VHS"
click txtLetter
pick List4 "TV 1.33:1"
see txtLetter "TV 1.33:1"
see List4.Visible no
see focus List6
