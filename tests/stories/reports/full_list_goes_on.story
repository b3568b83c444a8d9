# Within a view the full list prints from the view's place on.
film 1 Title="Alpha" Format="D" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="D" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="D" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click mnuByTitle
click cmdNext
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There is 1 Page to print." OK
see pages 1
see page 1 lines 20
see page 1 line 2 "   Reelora Prima All Titles Full List  11-21-2026  09:05:07"
see page 1 line 4 "  ____________________________________________________________________________"
see page 1 line 5 "  Beta                           Ann Smith (Dir.)                      REC #2"
see page 1 line 6 "  Ann Smith                                                     mins.   1952"
see page 1 line 8 "                                                               Comedy"
see page 1 line 9 "  Label:                DVD Disc(s)       MPAA :      DVD Disc       SND"
see page 1 line 10 "  Notes/Awards:                                                             :"
see page 1 line 11 "  Gamma                          Ann Smith (Dir.)                      REC #3"
see page 1 line 12 "  Ann Smith                                                     mins.   1953"
see page 1 line 14 "                                                               Western"
see page 1 line 15 "  Label:                DVD Disc(s)       MPAA :      DVD Disc       SND"
see page 1 line 16 "  Notes/Awards:                                                             :"
see page 1 line 18 "  TOTAL FILM(S) IN LIBRARY   2"
see page 1 line 20 "                                     Page  1"
