# Laser list at a key whose number is below 1 stops the program.
film 1 Title="Film 01" Genre="DR"
file Laserpra.Dat "Film 01                                 -1     \r\n"
count Laserpra 1
start
click mnualllas
stop "Bad record number"
