# In Edit the second star is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtStar2(1).Alignment centre
click txtStar2(1)
see focus txtStar2(1)
see txtStar2(1).Alignment left
