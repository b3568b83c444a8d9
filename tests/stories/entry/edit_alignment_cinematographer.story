# In Edit the cinematographer is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtCinematographer.Alignment centre
click txtCinematographer
see focus txtCinematographer
see txtCinematographer.Alignment left
