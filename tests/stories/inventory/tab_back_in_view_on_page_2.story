# On page 2 Shift+Tab goes from the selected page to the last field; leaving it saves and sorts, even in view.
film 1 Title="Alien" Format="V"
start
click optnoteson
see focus cmdSave
key Shift+Tab
see focus cmdDelete
key Shift+Tab
see focus cmdSort
key Shift+Tab
see focus cmdNew
key Shift+Tab
see focus cmdReset
key Shift+Tab
see focus optnoteson
key Shift+Tab
box warning "Your Rating" "Hit edit to change." OK
beep
beep
beep
beep
see focus cmdSave
