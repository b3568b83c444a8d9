# Edit leaves the cassette number shut for DVD.
film 1 Title="Alien" Format="D"
start
see txtCassNo.Enabled yes
click cmdEdit
see txtFormat "DVD"
see txtCassNo.Enabled no
