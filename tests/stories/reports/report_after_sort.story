# A list can be printed right after a sort run from the menu, which leaves a key file open.
film 1 Title="Alpha" Format="V" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="V" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="V" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
clock 2026-11-21 09:05:07
start
click mnuSort
beep
beep
beep
beep
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There is 1 Page to print." OK
see pages 1
see page 1 lines 26
see page 1 line 2 "   Reelora Prima All Titles Full List  11-21-2026  09:05:07"
see page 1 line 4 "  ____________________________________________________________________________"
see page 1 line 5 "  Alpha                          Ann Smith (Dir.)                      REC #1"
see page 1 line 6 "  Ann Smith                                                     mins.   1951"
see page 1 line 8 "                                                               Drama"
see page 1 line 9 "  Label:                VHS  Cass(s).     MPAA :      Cass#          SND:"
see page 1 line 10 "  Notes/Awards:                                                             :"
see page 1 line 11 "  Beta                           Ann Smith (Dir.)                      REC #2"
see page 1 line 12 "  Ann Smith                                                     mins.   1952"
see page 1 line 14 "                                                               Comedy"
see page 1 line 15 "  Label:                VHS  Cass(s).     MPAA :      Cass#          SND:"
see page 1 line 16 "  Notes/Awards:                                                             :"
see page 1 line 17 "  Gamma                          Ann Smith (Dir.)                      REC #3"
see page 1 line 18 "  Ann Smith                                                     mins.   1953"
see page 1 line 20 "                                                               Western"
see page 1 line 21 "  Label:                VHS  Cass(s).     MPAA :      Cass#          SND:"
see page 1 line 22 "  Notes/Awards:                                                             :"
see page 1 line 24 "  TOTAL FILM(S) IN LIBRARY   3"
see page 1 line 26 "                                     Page  1"
