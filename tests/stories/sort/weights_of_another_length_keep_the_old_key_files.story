# Weights that are too few are no weights.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
sorted
file UPPER.ALT "ABC"
start
click cmdSort
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
see file Titlepra " 0\r\n"
see state CurrentRecNo 1
