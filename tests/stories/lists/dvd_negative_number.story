# DVD list at a key whose number is below 1 stops the program.
film 1 Title="Film 01" Genre="DR"
file DVDpra.Dat "Film 01                                 -1     \r\n"
count DVDpra 1
start
click mnualldvd
stop "Bad record number"
