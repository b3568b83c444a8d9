# In view the MPAA rating refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtRating
box warning "MPAA Rating" "Hit edit to change." OK
see focus cmdSave
see txtRating.Alignment centre
