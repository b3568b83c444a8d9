# Each format letter is shown as its name; the cassette number is enabled after showing, whatever the format.
each FORMAT_NAME FORMAT SHOWN
row  dvd         D      DVD
row  laser       L      Laser
row  vhs         V      VHS

film 1 Title="Alien" Format="{FORMAT}" CassNo="77"
start
see txtFormat "{SHOWN}"
see txtCassNo.Enabled yes
see txtCassNo "77"
