# In view the aspect refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtLetter
box warning "Aspect" "Hit edit to change." OK
see focus cmdSave
see txtLetter.Alignment centre
