# An empty AutoSave stops the program.
file AutoSave ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length AutoSave 0
see length Recpra.Dat 649
