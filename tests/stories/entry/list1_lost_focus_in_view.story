# The genre list that is left in view hides the message line and keeps its own hint.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenre
click mnuSave
see state EditMode 0
click mnuSort
beep
beep
beep
beep
see lblSorting.Visible yes
see focus List1
key Shift+Tab
box warning "Genre" "Hit edit to change." OK
see focus cmdSave
see lblSorting.Visible no
see lblSelect.Visible yes
see List1.Visible no
see List1.Items
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
