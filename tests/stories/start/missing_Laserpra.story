# Without the file Laserpra the program names the failure and stops.
remove Laserpra
film 1 Title="Alien"
start
stop "File not found"
see missing Laserpra
see length Recpra.Dat 649
