# In view the price refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtCost
box warning "Cost" "Hit edit to change." OK
see focus cmdSave
see txtCost.Alignment centre
