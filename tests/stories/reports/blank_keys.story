# One blank key is skipped, the second in a row is taken: its number leads to a film.
film 1 Title="Alpha" Format="D" Genre="DR"
film 2 Title="Beta" Format="D" Genre="DR"
film 3 Title="Gamma" Format="D" Genre="DR"
key Titlepra.Dat "" 1
key Titlepra.Dat "" 2
key Titlepra.Dat "Gamma" 3
key Titlepra.Dat "" 1
key Titlepra.Dat "Alpha" 1
count Titlepra 5
clock 2026-11-21 09:05:07
start
click mnuShort
box question "Reelora Prima Print Program" "Are you sure you want to Print Abridged List?,  This List only prints "
+ "Title, Date, Genre and Format. It will take 1 page to print." Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 55
see page 1 line 2 "    Reelora Prima Short Print List    11-21-2026  09:05:07"
see page 1 line 4 "  Title                                    Date     Genre                 Format"
see page 1 line 6 "Beta                                                Drama                 DVD"
see page 1 line 7 "Gamma                                               Drama                 DVD"
see page 1 line 8 "Alpha                                               Drama                 DVD"
see page 1 line 10 "TOTAL FILM(S)   3"
see page 1 line 55 "                                  Page  1"
