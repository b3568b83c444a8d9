# In Edit the costume designer is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtCostume.Alignment centre
click txtCostume
see focus txtCostume
see txtCostume.Alignment left
