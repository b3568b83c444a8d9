# In a new Laser film a press on a disc mode takes it, and the colour list comes up.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtCLV1
pick List5 "CAV"
see txtCLV1 "CAV"
see List5.Visible no
see List5.Items
see List6.Visible yes
see focus List6
