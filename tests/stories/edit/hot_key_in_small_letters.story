# A hot key works in small letters as in capitals.
film 1 Title="Alien"
start
key Alt+e
see state EditMode 1
see focus cmdEdit
