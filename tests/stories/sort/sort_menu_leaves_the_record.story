# The menu makes the same files and leaves the record on the screen; the view's kind names no view.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
start
click cmdNext
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
see lblsorted "No. Titles  5  -    No. DVDS  2  -    No.Laser discs  1  -    No.VHS  2"
see lblsorted.Visible yes
see state ViewKind "DVDpra"
see state KeyFilePos 0
see state CurrentRecNo 2
see txtTitle "alien"
see state SortStarted 1
see state SortIncludeValue "V"
see state SortStatement "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"V\") Record(649) "
see lblSorting ""
see lblSorting.Visible yes
see lblNumrec ""
see lblRetcode ""
see missing Last
