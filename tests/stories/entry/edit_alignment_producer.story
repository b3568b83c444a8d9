# In Edit the producer is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtProducer.Alignment centre
click txtProducer
see focus txtProducer
see txtProducer.Alignment left
