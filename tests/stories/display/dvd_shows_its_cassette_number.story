# A stored cassette number of a DVD is shown nonetheless.
film 1 Title="Alien" Format="D" CassNo="9"
start
see txtCassNo "9"
