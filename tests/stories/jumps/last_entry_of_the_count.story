# "Last" naming the last slot is no end.
films 1 4 Title="Film #" Genre="SF" Format="D"
file Last "4\r\n"
start
click mnuLastEntry
see txtTitle "Film 4"
