# In Edit the fourth star is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtStar4(1).Alignment centre
click txtStar4(1)
see focus txtStar4(1)
see txtStar4(1).Alignment left
