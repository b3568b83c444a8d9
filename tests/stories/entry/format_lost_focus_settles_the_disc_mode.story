# A chosen tape shuts the disc mode only when the format loses the focus.
film 1 Title="Alien" Format="L" CLV1="CAV"
start
click cmdEdit
see txtCLV1.Enabled yes
click txtFormat
pick List3 "VHS"
see txtFormat "VHS"
see txtCLV1.Enabled yes
click txtFormat
see txtCLV1.Enabled no
