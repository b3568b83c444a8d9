# In a new laser film the pointer over the disc mode keeps the mode that the list has, and the list stays open.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtCLV1
move txtCLV1
see txtCLV1 "CLV"
key Down
see txtCLV1 "CAV"
move txtCLV1
see txtCLV1 "CAV"
see List5.Visible yes
see List5.ListIndex 1
see focus List5
click cmdSave
see film 3 CLV1 "CAV"
