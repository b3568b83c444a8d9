# In view the own rating refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtRatings
box warning "Your Rating" "Hit edit to change." OK
beep
beep
beep
beep
see focus cmdSave
see txtRatings.Alignment centre
