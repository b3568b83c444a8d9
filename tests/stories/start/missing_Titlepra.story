# Without the file Titlepra the program names the failure and stops.
remove Titlepra
film 1 Title="Alien"
start
stop "File not found"
see missing Titlepra
see length Recpra.Dat 649
