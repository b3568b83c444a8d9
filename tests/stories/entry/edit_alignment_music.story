# In Edit the music is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtMusic.Alignment centre
click txtMusic
see focus txtMusic
see txtMusic.Alignment left
