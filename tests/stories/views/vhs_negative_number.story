# VHS view at a key whose number is below 0 stops the program.
film 1 Title="Alien" Format="V"
file VHSpra.Dat "Alien                                   -1     \r\n"
count VHSpra 1
start
click mnuByVHS
stop "Bad record number"
