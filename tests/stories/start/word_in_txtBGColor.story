# A word in txtBGColor is no colour.
file txtBGColor "blue\r\n"
start
stop "Type mismatch"
