# In view the director refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtDirector
box warning "Director" "Hit edit to change." OK
see focus cmdSave
see txtDirector.Alignment centre
