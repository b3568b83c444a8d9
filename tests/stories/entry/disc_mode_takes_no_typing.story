# What is typed into the disc mode goes straight back to the stored letters.
film 1 Title="Alien" Format="L" CLV1="CAV" Color1="Color"
start
click cmdEdit
click txtColor1
key Shift+Tab
key Shift+Tab
see focus txtCLV1
type "X"
see txtCLV1 "CAV"
clear
see txtCLV1 "CAV"
click cmdSave
see film 1 CLV1 "CAV"
