# A laser disc enables the box of the disc mode.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="L" CLV1="CAV"
start
see txtCLV1.Enabled no
click cmdNext
see txtFormat "Laser"
see txtCLV1.Enabled yes
see txtCLV1 "CAV"
