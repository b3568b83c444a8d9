# In Edit the sound system is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtSound.Alignment centre
click txtSound
see focus txtSound
see txtSound.Alignment left
