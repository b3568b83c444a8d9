# In Edit the fifth star is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtStar5(1).Alignment centre
click txtStar5(1)
see focus txtStar5(1)
see txtStar5(1).Alignment left
