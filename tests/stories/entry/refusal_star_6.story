# In view the sixth star refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtStar6(1)
box warning "Star 6" "Hit edit to change." OK
see focus cmdSave
see txtStar6(1).Alignment centre
