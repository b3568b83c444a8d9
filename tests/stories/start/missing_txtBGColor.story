# Without the file txtBGColor the program names the failure and stops.
remove txtBGColor
film 1 Title="Alien"
start
stop "File not found"
see missing txtBGColor
see length Recpra.Dat 649
