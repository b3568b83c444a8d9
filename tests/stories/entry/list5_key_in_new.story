# In a new film a key closes the disc mode list, and the colour is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtCLV1
key Down
key Enter
see txtCLV1 "CAV"
see List5.Visible no
see List5.Items
see focus List6
