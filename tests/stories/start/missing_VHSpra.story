# Without the file VHSpra the program names the failure and stops.
remove VHSpra
film 1 Title="Alien"
start
stop "File not found"
see missing VHSpra
see length Recpra.Dat 649
