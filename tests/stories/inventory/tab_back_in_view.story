# Shift+Tab goes back from Save over the buttons and the selected page to the last field of page 1, which refuses in
# view.
film 1 Title="Alien" Format="V"
start
key Shift+Tab
see focus cmdDelete
key Shift+Tab
see focus cmdSort
key Shift+Tab
see focus cmdNew
key Shift+Tab
see focus cmdReset
key Shift+Tab
see focus optNotesoff
key Shift+Tab
box warning "Color/B&W" "Hit edit to change." OK
see focus cmdSave
