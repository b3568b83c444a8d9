# In Edit the producer leaves the message line alone.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtProducer
see lblSorting "\r\n\r\n          Save Work When Finished!"
see lblSorting.FontSize 9.75
