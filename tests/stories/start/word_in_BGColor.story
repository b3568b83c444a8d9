# A word in BGColor is no colour.
file BGColor "blue\r\n"
start
stop "Type mismatch"
