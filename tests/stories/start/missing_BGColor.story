# Without the file BGColor the program names the failure and stops.
remove BGColor
film 1 Title="Alien"
start
stop "File not found"
see missing BGColor
see length Recpra.Dat 649
