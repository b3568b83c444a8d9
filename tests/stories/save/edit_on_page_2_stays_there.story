# Save on page 2 in Edit leaves page 2 up and hides the disc mode that Edit had shown there.
film 1 Title="Alien" Format="L" CLV1="CAV"
film 2 Title="Brazil"
start
click optnoteson
see txtCLV1.Visible no
click cmdEdit
see txtCLV1.Visible yes
see txtColor1.Visible yes
click cmdSave
see lblPage "PAGE 2"
see state PageFlag 1
see txtCLV1.Visible no
see txtColor1.Visible yes
