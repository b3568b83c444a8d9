# In Edit of a Laser a click on the disc mode opens its list with the reminder to save.
film 1 Title="Alien" Format="L" CLV1="CAV" Color1="Color"
start
click cmdEdit
see txtCLV1 "CAV"
click txtCLV1
see focus List5
see List5.Visible yes
see List5.Items "CLV" "CAV"
see txtCLV1 "CLV"
see lblSorting "Save Work When Finished!"
see frmPage1.HelpContext 17
