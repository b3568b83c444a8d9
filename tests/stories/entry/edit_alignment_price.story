# In Edit the price is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtCost.Alignment centre
click txtCost
see focus txtCost
see txtCost.Alignment left
