# In Edit a press on a disc mode takes it, and Save gets the focus.
film 1 Title="Alien" Format="L" CLV1="CAV" Color1="Color"
start
click cmdEdit
click txtCLV1
pick List5 "CLV"
see txtCLV1 "CLV"
see List5.Visible no
see List6.Visible no
see focus cmdSave
click cmdSave
see film 1 CLV1 "CLV"
