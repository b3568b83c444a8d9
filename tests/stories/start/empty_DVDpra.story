# An empty DVDpra stops the program.
file DVDpra ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length DVDpra 0
see length Recpra.Dat 649
