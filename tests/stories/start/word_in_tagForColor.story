# A word in tagForColor is no colour.
file tagForColor "blue\r\n"
start
stop "Type mismatch"
