# The files are written whatever the screen shows.
start
remove BGColor
remove txtBGColor
remove txtForColor
file tagForColor "junk"
click mnudefault
see file BGColor "16711680\r\n"
see file txtBGColor "16777215\r\n"
see file txtForColor "16711680\r\n"
see file tagForColor "65535\r\n"
