# The kind of view that a sort leaves does not spare the open key file.
film 1 Title="Alpha" Format="D" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="D" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="D" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
clock 2026-11-21 09:05:07
start
click mnuSort
beep
beep
beep
beep
see state ViewKind "DVDpra"
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
see page 1 line 6 "Alpha                                      1951     Drama                 DVD"
see page 1 line 7 "Beta                                       1952     Comedy                DVD"
see page 1 line 8 "Gamma                                      1953     Western               DVD"
see page 1 line 9 "  ____________________________________________________________________________"
see page 1 line 11 "  TOTAL DVD FILM(S)   3"
see page 1 line 56 "                                     Page  1"
