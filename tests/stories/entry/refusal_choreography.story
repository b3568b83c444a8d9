# In view the choreography refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtChoreography
box warning "Choreography" "Hit edit to change." OK
see focus cmdSave
see txtChoreography.Alignment centre
