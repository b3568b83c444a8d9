# Each move in the disc mode list goes into the box and the record.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtCLV1
key Down
see txtCLV1 "CAV"
key Up
see txtCLV1 "CLV"
key End
see txtCLV1 "CAV"
key Alt+S
see film 3 CLV1 "CAV"
