# In view the format refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtFormat
box warning "Format" "Hit edit to change." OK
see focus cmdSave
see txtFormat.Alignment centre
