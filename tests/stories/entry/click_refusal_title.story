# A click on the title in view is refused, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click txtTitle
box warning "Title" "Hit edit to change." OK
see focus cmdSave
