# In Edit the focus alone opens no list on the disc mode.
film 1 Title="Alien" Format="L" CLV1="CAV" Color1="Color"
start
click cmdEdit
click txtColor1
key Shift+Tab
key Shift+Tab
see focus txtCLV1
see List5.Visible no
see List5.Items
see txtCLV1 "CAV"
