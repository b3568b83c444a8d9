# In view the fifth star refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtStar5(1)
box warning "Star 5" "Hit edit to change." OK
see focus cmdSave
see txtStar5(1).Alignment centre
