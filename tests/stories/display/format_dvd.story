# The letter D shows as DVD; the cassette box is enabled after showing, whatever the format.
film 1 Title="Alien" Format="D" CassNo="77"
start
see txtFormat "DVD"
see txtCassNo.Enabled yes
see txtCassNo "77"
