# In view the set direction refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtSetDirection
box warning "Set Direction" "Hit edit to change." OK
see focus cmdSave
see txtSetDirection.Alignment centre
