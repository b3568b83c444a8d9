# Tab goes forward from Save over the buttons to the title; the next field refuses in view.
film 1 Title="Alien" Format="V"
start
see focus cmdSave
key Tab
see focus cmdEdit
key Tab
see focus cmdMatch
key Tab
see focus cmdPrevious
key Tab
see focus cmdNext
key Tab
see focus txtTitle
key Tab
box warning "Director" "Hit edit to change." OK
see focus cmdSave
