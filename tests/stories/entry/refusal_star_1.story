# In view the first star refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtStar1(0)
box warning "Star 1" "Hit edit to change." OK
see focus cmdSave
see txtStar1(0).Alignment centre
