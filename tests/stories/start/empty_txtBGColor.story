# An empty txtBGColor stops the program.
file txtBGColor ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length txtBGColor 0
see length Recpra.Dat 649
