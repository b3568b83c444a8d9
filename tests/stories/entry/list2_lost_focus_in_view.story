# The rating list that is left in view hides the message line.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
click mnuSave
click mnuSort
beep
beep
beep
beep
see lblSorting.Visible yes
see focus List2
key Tab
box warning "Packaging" "Hit edit to change." OK
see focus cmdSave
see lblSorting.Visible no
see List2.Items
