# The letter L shows as Laser; the cassette box is enabled after showing, whatever the format.
film 1 Title="Alien" Format="L" CassNo="77"
start
see txtFormat "Laser"
see txtCassNo.Enabled yes
see txtCassNo "77"
