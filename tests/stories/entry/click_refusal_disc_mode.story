# A click in view on the disc mode that has the focus already is refused under a title of its own, and the focus
# stays.
film 1 Title="Alien" Format="L" CLV1="CAV"
start
click cmdEdit
click txtColor1
key Shift+Tab
see focus txtColor1
key Shift+Tab
see focus txtCLV1
see List5.Visible no
click mnuSave
see focus txtCLV1
click txtCLV1
box warning "CAV / CLV" "Hit edit to change." OK
see focus txtCLV1
see List5.Visible no
