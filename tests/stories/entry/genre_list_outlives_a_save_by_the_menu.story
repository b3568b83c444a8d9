# Save from the menu leaves the genre list of a new film open; the key that closes it in view meets the refusal of
# the next box.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
see focus List1
click mnuSave
see focus List1
see List1.Visible yes
see state NewMode 0
see film 3 Genre "AA"
key Enter
box warning "Genre List" "Hit edit to change." OK
see focus cmdSave
see List1.Visible no
see List1.Items
see lblSorting.Visible no
see lblSelect.Visible yes
