# An empty txtForColor stops the program.
file txtForColor ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length txtForColor 0
see length Recpra.Dat 649
