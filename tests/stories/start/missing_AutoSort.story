# Without the file AutoSort the program names the failure and stops.
remove AutoSort
film 1 Title="Alien"
start
stop "File not found"
see missing AutoSort
see length Recpra.Dat 649
