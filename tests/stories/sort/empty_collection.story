# An empty collection gives four empty key files and four counts of 0.
start
click mnuSort
beep
beep
beep
beep
see length Titlepra.Dat 0
see file Titlepra " 0\r\n"
see length DVDpra.Dat 0
see file DVDpra " 0\r\n"
see length Laserpra.Dat 0
see file Laserpra " 0\r\n"
see length VHSpra.Dat 0
see file VHSpra " 0\r\n"
see lblsorted "No. Titles  0  -    No. DVDS  0  -    No.Laser discs  0  -    No.VHS  0"
