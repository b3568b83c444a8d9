# Laser view at a key whose number is below 0 stops the program.
film 1 Title="Alien" Format="L"
file Laserpra.Dat "Alien                                   -1     \r\n"
count Laserpra 1
start
click mnuByLaser
stop "Bad record number"
