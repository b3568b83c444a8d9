# Entering the format of a DVD in Edit makes the letter V in memory until a choice or the save.
film 1 Title="Alien" Format="D"
start
click cmdEdit
click txtFormat
see txtFormat "DVD"
key Tab
see focus cmdSave
see txtFormat "DVD"
click cmdEdit
see txtFormat "VHS"
