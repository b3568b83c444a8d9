# In Edit the sound that is left steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtSound
click txtProducer
see focus txtProducer
