# A save centres the producer again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtProducer
see txtProducer.Alignment left
click mnuSave
see txtProducer.Alignment centre
