# In Edit a key takes the mode and leaves the list open.
film 1 Title="Alien" Format="L" CLV1="CAV" Color1="Color"
start
click cmdEdit
click txtCLV1
key Down
key Enter
see txtCLV1 "CAV"
see List5.Visible yes
see focus List5
