# "Last" with a leading blank and without a line end reads alike.
films 1 4 Title="Film #" Genre="SF" Format="D"
file Last " 2"
start
click mnuLastEntry
see txtTitle "Film 2"
see state LastEntryRecNo "2"
