# In Edit the disc mode is not aligned again for typing.
film 1 Title="Alien" Format="L" CLV1="CAV"
start
click cmdEdit
see txtCLV1.Alignment centre
click txtCLV1
see focus List5
see txtCLV1.Alignment centre
