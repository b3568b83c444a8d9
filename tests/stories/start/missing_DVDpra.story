# Without the file DVDpra the program names the failure and stops.
remove DVDpra
film 1 Title="Alien"
start
stop "File not found"
see missing DVDpra
see length Recpra.Dat 649
