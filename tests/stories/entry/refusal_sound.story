# In view the sound system refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtSound
box warning "Sound" "Hit edit to change." OK
see focus cmdSave
see txtSound.Alignment centre
