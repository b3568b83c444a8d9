# A pass that fails leaves the key file that it has opened, new and empty.
film 1 Title="Alien" Format="D"
remove UPPER.ALT
start
click mnuSort
beep
beep
beep
beep
see length Titlepra.Dat 0
see length DVDpra.Dat 0
see length Laserpra.Dat 0
see length VHSpra.Dat 0
see file DVDpra " 0\r\n"
