# In Edit the purchase date is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtPurchase.Alignment centre
click txtPurchase
see focus txtPurchase
see txtPurchase.Alignment left
