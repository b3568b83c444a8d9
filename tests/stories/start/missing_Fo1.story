# Without the file Fo1 the program names the failure and stops.
remove Fo1
film 1 Title="Alien"
start
stop "File not found"
see missing Fo1
see length Recpra.Dat 649
