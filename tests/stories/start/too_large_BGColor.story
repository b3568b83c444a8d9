# A number beyond 32 bits in BGColor.
file BGColor "99999999999\r\n"
start
stop "Overflow"
