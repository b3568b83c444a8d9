# The letter V shows as VHS; the cassette box is enabled after showing, whatever the format.
film 1 Title="Alien" Format="V" CassNo="77"
start
see txtFormat "VHS"
see txtCassNo.Enabled yes
see txtCassNo "77"
