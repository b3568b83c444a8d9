# Title list at a key whose number is below 1 stops the program.
film 1 Title="Film 01" Genre="DR"
file Titlepra.Dat "Film 01                                 -1     \r\n"
count Titlepra 1
start
click mnuAllTitles
stop "Bad record number"
