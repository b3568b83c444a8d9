# An empty Laserpra stops the program.
file Laserpra ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length Laserpra 0
see length Recpra.Dat 649
