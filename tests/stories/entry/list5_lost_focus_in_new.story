# In a new film the disc mode list that is left empties itself and steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtCLV1
click txtDirector
see focus txtDirector
see List5.Visible no
see List5.Items
see txtCLV1 "CLV"
