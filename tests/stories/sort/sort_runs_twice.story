# A sort right after a sort: the file that the first has left open is closed and made again.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
start
click mnuSort
beep
beep
beep
beep
click mnuSort
beep
beep
beep
beep
see file Titlepra.Dat "alien                                   0000002\r\nBrazil                                  "
+ "0000004\r\nRan                                     0000003\r\nSolaris                                 0000001\r\n"
+ "Zelig                                   0000005\r\n"
see file DVDpra.Dat "Solaris                                 0000001\r\nZelig                                   "
+ "0000005\r\n"
see file Laserpra.Dat "alien                                   0000002\r\n"
see file VHSpra.Dat "Brazil                                  0000004\r\nRan                                     "
+ "0000003\r\n"
see file Titlepra " 5\r\n"
see file DVDpra " 2\r\n"
see file Laserpra " 1\r\n"
see file VHSpra " 2\r\n"
see state TitleCount "5"
see state DVDCount "2"
see state LaserCount "1"
see state VHSCount "2"
