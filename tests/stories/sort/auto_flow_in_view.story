# In view the field refuses, and what it loses the focus by is the end of an entry as well.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file AutoSave "NO\r\n"
file AutoSort "NO\r\n"
start
click optnoteson
click txtRatings
box warning "Your Rating" "Hit edit to change." OK
beep
beep
beep
beep
see focus cmdSave
see file Last " 1 \r\n"
see state LastEntryRecNo "1"
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
