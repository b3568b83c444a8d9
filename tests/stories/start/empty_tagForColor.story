# An empty tagForColor stops the program.
file tagForColor ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length tagForColor 0
see length Recpra.Dat 649
