# A number beyond 32 bits in txtBGColor.
file txtBGColor "99999999999\r\n"
start
stop "Overflow"
