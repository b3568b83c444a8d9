# A choice in the format list puts the letter in memory right again.
film 1 Title="Alien" Format="D"
start
click cmdEdit
click txtFormat
pick List3 "DVD"
see focus cmdSave
click cmdEdit
see txtFormat "DVD"
