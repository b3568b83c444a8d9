# A DVD's letter becomes the word in view, and the disc mode box is disabled; showing enables the cassette box again.
film 1 Title="Alien" Format="D"
start
see txtFormat "DVD"
see txtCLV1.Enabled no
see txtCassNo.Enabled yes
