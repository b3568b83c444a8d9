# Edit of a film without a format leaves the cassette number open.
film 1 Title="Alien"
start
click cmdEdit
see txtCassNo.Enabled yes
