# In Edit the first star is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtStar1(0).Alignment centre
click txtStar1(0)
see focus txtStar1(0)
see txtStar1(0).Alignment left
