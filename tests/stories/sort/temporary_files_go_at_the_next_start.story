# What a sort that was stopped has left aside is gone after the next start.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file .reelora/Titlepra.Dat.new "half of it"
file .reelora/Titlepra.Dat.runs.new "and its runs"
start
see missing .reelora/Titlepra.Dat.new
see missing .reelora/Titlepra.Dat.runs.new
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
see missing .reelora/Titlepra.Dat.new
see missing .reelora/VHSpra.Dat.new
