# In a new film the sound that is left steers to the MPAA rating, wherever the user was going.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtSound
click txtProducer
see focus List2
