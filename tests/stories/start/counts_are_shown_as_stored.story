# The counts of the last sort are above the fields, whatever the master file contains.
count Titlepra 12
count DVDpra 7
count Laserpra 3
count VHSpra 2
film 1 Title="Alien"
start
see lblsorted "No. Titles  12 -    No. DVDS  7 -    No.Laser discs  3 -    No.VHS 2"
see state TitleCount "12"
see state DVDCount "7"
see state LaserCount "3"
see state VHSCount "2"
see state RecordCount 1
