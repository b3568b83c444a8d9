# Without the file txtForColor the program names the failure and stops.
remove txtForColor
film 1 Title="Alien"
start
stop "File not found"
see missing txtForColor
see length Recpra.Dat 649
