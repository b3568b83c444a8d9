# An empty AutoSort stops the program.
file AutoSort ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length AutoSort 0
see length Recpra.Dat 649
