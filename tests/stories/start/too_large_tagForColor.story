# A number beyond 32 bits in tagForColor.
file tagForColor "99999999999\r\n"
start
stop "Overflow"
