# VHS list at a key whose number is below 1 stops the program.
film 1 Title="Film 01" Genre="DR"
file VHSpra.Dat "Film 01                                 -1     \r\n"
count VHSpra 1
start
click mnuAllVHS
stop "Bad record number"
