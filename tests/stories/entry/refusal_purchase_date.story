# In view the purchase date refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtPurchase
box warning "Purchase Date" "Hit edit to change." OK
see focus cmdSave
see txtPurchase.Alignment centre
