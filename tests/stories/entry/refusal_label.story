# In view the label refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtLabel
box warning "Label" "Hit edit to change." OK
see focus cmdSave
see txtLabel.Alignment centre
