# An empty Titlepra stops the program.
file Titlepra ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length Titlepra 0
see length Recpra.Dat 649
