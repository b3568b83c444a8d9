# During an unsaved edit the button sorts the file as it is; then Reset asks.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
start
click cmdEdit
click txtTitle
type " 2"
click cmdSort
beep
beep
beep
beep
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." Yes
see file Titlepra.Dat "alien                                   0000002\r\nBrazil                                  "
+ "0000004\r\nRan                                     0000003\r\nSolaris                                 0000001\r\n"
+ "Zelig                                   0000005\r\n"
see file DVDpra.Dat "Solaris                                 0000001\r\nZelig                                   "
+ "0000005\r\n"
see file Laserpra.Dat "alien                                   0000002\r\n"
see file VHSpra.Dat "Brazil                                  0000004\r\nRan                                     "
+ "0000003\r\n"
see film 1 Title "Solaris 2"
see state EditMode 0
