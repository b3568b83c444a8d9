# In view the genre name refuses on the way in and Save gets the focus.
film 1 Title="Alien"
start
click txtGenreList
box warning "Genre List" "Hit edit to change." OK
see focus cmdSave
see txtGenreList.Alignment centre
