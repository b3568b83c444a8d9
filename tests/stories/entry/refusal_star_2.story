# In view the second star refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtStar2(1)
box warning "Star 2" "Hit edit to change." OK
see focus cmdSave
see txtStar2(1).Alignment centre
