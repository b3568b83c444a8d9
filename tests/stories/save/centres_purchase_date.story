# A save centres the purchase date again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtPurchase
see txtPurchase.Alignment left
click mnuSave
see txtPurchase.Alignment centre
