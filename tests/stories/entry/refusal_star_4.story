# In view the fourth star refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtStar4(1)
box warning "Star 4" "Hit edit to change." OK
see focus cmdSave
see txtStar4(1).Alignment centre
