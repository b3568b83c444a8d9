# In Edit the cassette number is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtCassNo.Alignment left
click txtCassNo
see focus txtCassNo
see txtCassNo.Alignment left
