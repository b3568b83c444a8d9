# An empty VHSpra stops the program.
file VHSpra ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length VHSpra 0
see length Recpra.Dat 649
