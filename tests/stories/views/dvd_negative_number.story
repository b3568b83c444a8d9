# DVD view at a key whose number is below 0 stops the program.
film 1 Title="Alien" Format="D"
file DVDpra.Dat "Alien                                   -1     \r\n"
count DVDpra 1
start
click mnuByDVD
stop "Bad record number"
