# Edit leaves the cassette number shut for Laser.
film 1 Title="Alien" Format="L"
start
see txtCassNo.Enabled yes
click cmdEdit
see txtFormat "Laser"
see txtCassNo.Enabled no
