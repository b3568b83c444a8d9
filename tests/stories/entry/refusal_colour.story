# In view the colour refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtColor1
box warning "Color/B&W" "Hit edit to change." OK
see focus cmdSave
see txtColor1.Alignment centre
