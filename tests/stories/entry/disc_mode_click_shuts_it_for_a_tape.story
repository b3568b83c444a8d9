# A click on a disc mode that a tape still has open shuts the box, and its list opens nonetheless.
film 1 Title="Alien" Format="L" CLV1="CLV" Color1="Color"
start
click cmdEdit
click txtFormat
pick List3 "VHS"
see txtCLV1.Enabled yes
click txtCLV1
see txtCLV1.Enabled no
see List5.Visible yes
see focus List5
