# A number beyond 32 bits in txtForColor.
file txtForColor "99999999999\r\n"
start
stop "Overflow"
