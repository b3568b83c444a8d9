# The letter D shows as DVD; the cassette box is enabled after showing, whatever the format.
each FORMAT_NAME FORMAT SHOWN
row  dvd         D      DVD
row  laser       L      Laser
row  vhs         V      VHS

film 1 Title="Alien" Format="{FORMAT}" CassNo="77"
start
see txtFormat "{SHOWN}"
see txtCassNo.Enabled yes
see txtCassNo "77"
