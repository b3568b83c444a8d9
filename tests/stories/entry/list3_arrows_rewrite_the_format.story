# Each move in the format list puts its word into the box and settles which fields are asked.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
key Down
see txtFormat "Laser"
see txtCassNo.Enabled no
see txtCLV1.Enabled yes
key Down
see txtFormat "VHS"
see txtCassNo.Enabled yes
key Down
see txtFormat "VHS"
key Up
see txtFormat "Laser"
key Home
see txtFormat "DVD"
see txtCassNo.Enabled no
key Up
see txtFormat "DVD"
key End
see txtFormat "VHS"
