# A count is the first line of its file without the blanks before it, whatever it contains.
file Titlepra "   12 \n"
file DVDpra "\r\n"
file Laserpra "many\r\n9\r\n"
file VHSpra "007"
start
see state TitleCount "12 "
see state DVDCount ""
see state LaserCount "many"
see state VHSCount "007"
see lblsorted "No. Titles  12  -    No. DVDS   -    No.Laser discs  many -    No.VHS 007"
