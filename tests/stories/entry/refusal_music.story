# In view the music refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtMusic
box warning "Music Direction" "Hit edit to change." OK
see focus cmdSave
see txtMusic.Alignment centre
