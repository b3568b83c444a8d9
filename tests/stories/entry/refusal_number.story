# In view the number of discs refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtNumReel
box warning "No. Disc Tape Etc." "Hit edit to change." OK
see focus cmdSave
see txtNumReel.Alignment centre
