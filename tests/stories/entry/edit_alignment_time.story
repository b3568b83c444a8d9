# In Edit the running time is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtTime.Alignment centre
click txtTime
see focus txtTime
see txtTime.Alignment left
