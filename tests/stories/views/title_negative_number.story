# Title view at a key whose number is below 0 stops the program.
film 1 Title="Alien" Format="D"
file Titlepra.Dat "Alien                                   -1     \r\n"
count Titlepra 1
start
click mnuByTitle
stop "Bad record number"
