# Edit enables the cassette number as the format demands.
each FORMAT_NAME FORMAT SHOWN ENABLED
row  dvd         D      DVD   no
row  laser       L      Laser no
row  vhs         V      VHS   yes

film 1 Title="Alien" Format="{FORMAT}"
start
see txtCassNo.Enabled yes
click cmdEdit
see txtFormat "{SHOWN}"
see txtCassNo.Enabled {ENABLED}
