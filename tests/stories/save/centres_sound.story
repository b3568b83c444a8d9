# A save centres the sound system again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtSound
see txtSound.Alignment left
click mnuSave
see txtSound.Alignment centre
