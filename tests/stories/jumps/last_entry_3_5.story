# 3.5 in "Last" goes to the even neighbour.
films 1 4 Title="Film #" Genre="SF" Format="D"
file Last "3.5\r\n"
start
click mnuLastEntry
see txtTitle "Film 4"
