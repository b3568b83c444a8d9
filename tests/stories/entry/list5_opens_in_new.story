# In a new Laser film the disc mode opens its list, and CLV is the default.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtCLV1
see focus List5
see List5.Visible yes
see List5.Items "CLV" "CAV"
see List5.ListIndex 0
see txtCLV1 "CLV"
see frmPage1.HelpContext 17
