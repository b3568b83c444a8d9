# In view the year refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtYear
box warning "Year" "Hit edit to change." OK
see focus cmdSave
see txtYear.Alignment centre
