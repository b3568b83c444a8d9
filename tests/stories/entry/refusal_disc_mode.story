# In view the disc mode refuses on the way in and Save gets the focus.
film 1 Title="Alien" Format="L" CLV1="CAV"
start
click txtCLV1
box warning "CAV/CLV" "Hit edit to change." OK
see focus cmdSave
see txtCLV1.Alignment centre
