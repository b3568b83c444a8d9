# A word in txtForColor is no colour.
file txtForColor "blue\r\n"
start
stop "Type mismatch"
