# A deleted film's key stays until the next sort, and then is gone from all files.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="V"
film 3 Title="Casablanca" Format="V"
start
click mnuSort
beep
beep
beep
beep
click cmdReset
click cmdNext
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see key Titlepra.Dat 2 "Brazil" 2
see file VHSpra " 2\r\n"
click mnuSort
beep
beep
beep
beep
see file Titlepra.Dat "Alien                                   0000001\r\nCasablanca                              "
+ "0000003\r\n"
see file VHSpra.Dat "Casablanca                              0000003\r\n"
see file VHSpra " 1\r\n"
