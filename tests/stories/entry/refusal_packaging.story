# In view the packaging refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtPackage
box warning "Packaging" "Hit edit to change." OK
see focus cmdSave
see txtPackage.Alignment centre
