# In a new Laser film a key closes the aspect list, and the disc mode is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtLetter
key Down
key Enter
see txtLetter "Pan & Scan"
see List4.Visible no
see List4.Items
see focus List5
