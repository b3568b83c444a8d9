# In Edit the director is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtDirector.Alignment centre
click txtDirector
see focus txtDirector
see txtDirector.Alignment left
