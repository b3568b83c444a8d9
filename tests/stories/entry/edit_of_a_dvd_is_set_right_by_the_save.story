# The save takes the word in the box, so a DVD stays one.
film 1 Title="Alien" Format="D"
start
click cmdEdit
click txtFormat
key Tab
click cmdSave
see film 1 Format "D"
see txtFormat "DVD"
