# In view the third star refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtStar3(1)
box warning "Star 3" "Hit edit to change." OK
see focus cmdSave
see txtStar3(1).Alignment centre
