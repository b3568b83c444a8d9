# In Edit the third star is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtStar3(1).Alignment centre
click txtStar3(1)
see focus txtStar3(1)
see txtStar3(1).Alignment left
