# In view the cinematographer refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click optnoteson
click txtCinematographer
box warning "Cinematographer" "Hit edit to change." OK
see focus cmdSave
see txtCinematographer.Alignment centre
