# In view the cassette number refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtCassNo
box warning "Casette No." "Hit edit to change." OK
see focus cmdSave
see txtCassNo.Alignment left
