# In view the awards refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtAwards
box warning "Awards / Notes" "Hit edit to change." OK
see focus cmdSave
see txtAwards.Alignment centre
