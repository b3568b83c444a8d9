# In view every field of page 2 refuses and gives the focus to Save.
film 1 Title="Alien"
start
click optnoteson
click txtMusic
box warning "Music Direction" "Hit edit to change." OK
see focus cmdSave
