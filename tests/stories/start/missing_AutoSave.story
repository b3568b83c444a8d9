# Without the file AutoSave the program names the failure and stops.
remove AutoSave
film 1 Title="Alien"
start
stop "File not found"
see missing AutoSave
see length Recpra.Dat 649
