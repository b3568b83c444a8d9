# An empty BGColor stops the program.
file BGColor ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length BGColor 0
see length Recpra.Dat 649
