# In view the running time refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtTime
box warning "Time" "Hit edit to change." OK
see focus cmdSave
see txtTime.Alignment centre
