# In Edit the sixth star is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtStar6(1).Alignment centre
click txtStar6(1)
see focus txtStar6(1)
see txtStar6(1).Alignment left
