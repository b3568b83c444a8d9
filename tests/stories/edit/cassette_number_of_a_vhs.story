# Edit leaves the cassette number open for VHS.
film 1 Title="Alien" Format="V"
start
see txtCassNo.Enabled yes
click cmdEdit
see txtFormat "VHS"
see txtCassNo.Enabled yes
