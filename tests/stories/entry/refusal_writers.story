# In view the writers refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtWritten
box warning "Writers" "Hit edit to change." OK
see focus cmdSave
see txtWritten.Alignment centre
