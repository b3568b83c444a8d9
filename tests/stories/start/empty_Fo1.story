# An empty Fo1 stops the program.
file Fo1 ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length Fo1 0
see length Recpra.Dat 649
