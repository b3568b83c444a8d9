# Without the file tagForColor the program names the failure and stops.
remove tagForColor
film 1 Title="Alien"
start
stop "File not found"
see missing tagForColor
see length Recpra.Dat 649
