# The laser list calls every film of its keys a laser disc; the others show what the record says now.
film 1 Title="Alpha" Format="V" Genre="CO" Year="1951"
key Laserpra.Dat "Alpha" 1
count Laserpra 1
key DVDpra.Dat "Alpha" 1
count DVDpra 1
clock 2026-11-21 09:05:07
start
click mnuLaser
box question "Reelora Prima Print Program" "Do you want to print laser disc library?  This list only prints Title, "
+ "Date, Genre and Format. It will take 1 page to print." Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 56
see page 1 line 2 "        Reelora Prima Laser List    11-21-2026  09:05:07"
see page 1 line 4 "  Title                                    Date     Genre                 Format"
see page 1 line 6 "Alpha                                      1951     Comedy                Laser"
see page 1 line 7 "  ____________________________________________________________________________"
see page 1 line 9 "TOTAL LASER FILM(S)   1"
see page 1 line 56 "                                     Page  1"
click mnuDVD
box question "Reelora Prima Print Program" "Do you want to print DVD disc library?  This list only prints Title, "
+ "Date, Genre and Format. It will take 1 page to print." Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 56
see page 1 line 2 "        Reelora Prima DVD List     11-21-2026  09:05:07"
see page 1 line 4 "  Title                                    Date     Genre                 Format"
see page 1 line 6 "Alpha                                      1951     Comedy                VHS"
see page 1 line 7 "  ____________________________________________________________________________"
see page 1 line 9 "  TOTAL DVD FILM(S)   1"
see page 1 line 56 "                                     Page  1"
