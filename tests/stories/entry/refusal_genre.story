# In view the genre code refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtGenre
box warning "Genre" "Hit edit to change." OK
see focus cmdSave
see txtGenre.Alignment centre
