# A save centres the music again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtMusic
see txtMusic.Alignment left
click mnuSave
see txtMusic.Alignment centre
