# The cassette box is shut by Edit for a disc and opened again by the save, whatever the format.
film 1 Title="Alien" Format="V" CassNo="77" Color1="B & W"
film 2 Title="Brazil" Format="D" CassNo="88"
film 3 Title="Cube" Format="L" CassNo="99"
start
see txtCassNo.Enabled yes
see txtCLV1.Enabled no
click cmdEdit
see txtCassNo.Enabled yes
see lblSorting "\r\n\r\n          Save Work When Finished!"
click cmdSave
see txtCassNo.Enabled yes
click cmdNext
see txtFormat "DVD"
see txtCassNo "88"
see txtCassNo.Enabled yes
click cmdEdit
see txtCassNo.Enabled no
click mnuSave
see txtCassNo.Enabled yes
see txtCLV1.Enabled no
click cmdNext
see txtFormat "Laser"
see txtCLV1.Enabled yes
see txtCassNo "99"
