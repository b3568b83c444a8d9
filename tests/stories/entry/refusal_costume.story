# In view the costume designer refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtCostume
box warning "Costumer" "Hit edit to change." OK
see focus cmdSave
see txtCostume.Alignment centre
