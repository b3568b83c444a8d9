# In Edit the set direction is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtSetDirection.Alignment centre
click txtSetDirection
see focus txtSetDirection
see txtSetDirection.Alignment left
