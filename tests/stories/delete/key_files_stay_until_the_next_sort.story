# Keys and counts stay until the next sort, which drops the film.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
file Last " 1 \r\n"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see file Titlepra " 2\r\n"
see key Titlepra.Dat 1 "Alien" 1
see key VHSpra.Dat 1 "Alien" 1
see lblsorted "No. Titles  2 -    No. DVDS  0 -    No.Laser discs  0 -    No.VHS 2"
see file Last " 1 \r\n"
click mnuByTitle
see txtTitle ""
see state CurrentRecNo 1
click mnuSort
beep
beep
beep
beep
see file Titlepra " 1\r\n"
see file VHSpra " 1\r\n"
see length Titlepra.Dat 49
see length VHSpra.Dat 49
see key Titlepra.Dat 1 "Brazil" 2
