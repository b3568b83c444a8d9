# A film deleted after the sort: its key stays and leads to an empty screen; the counts stay as they are.
film 1 Title="Alien" Format="D" Genre="SF"
film 2 Title="Brazil" Format="D" Genre="SF"
sorted
start
click cmdNext
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
click cmdReset
click mnuByTitle
click cmdNext
see state CurrentRecNo 2
see txtTitle ""
see txtFormat ""
see key Titlepra.Dat 2 "Brazil" 2
see file Titlepra " 2\r\n"
see lblsorted "No. Titles  2 -    No. DVDS  2 -    No.Laser discs  0 -    No.VHS 0"
