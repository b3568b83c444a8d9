# The title takes the focus in view without a word; the next field refuses.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
key Tab
see focus txtTitle
key Tab
box warning "Director" "Hit edit to change." OK
see focus cmdSave
