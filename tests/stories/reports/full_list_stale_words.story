# A film without genre and aspect shows the words of the film before.
film 1 Title="Alpha" Format="D" Genre="WE" Letter="W"
film 2 Title="Beta" Format="D"
film 3 Title="Gamma" Format="D" Genre="ZZ" Letter="X"
sorted
clock 2026-11-21 09:05:07
start
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
see page 1 line 5 "  Alpha                           (Dir.)                               REC #1"
see page 1 line 6 "                                                                mins."
see page 1 line 7 "                                                                     Wide Screen"
see page 1 line 8 "                                                               Western"
see page 1 line 9 "  Label:                DVD Disc(s)       MPAA :      DVD Disc       SND"
see page 1 line 10 "  Notes/Awards:                                                             :"
see page 1 line 11 "  Beta                            (Dir.)                               REC #2"
see page 1 line 12 "                                                                mins."
see page 1 line 13 "                                                                     Wide Screen"
see page 1 line 14 "                                                               Western"
see page 1 line 15 "  Label:                DVD Disc(s)       MPAA :      DVD Disc       SND"
see page 1 line 16 "  Notes/Awards:                                                             :"
see page 1 line 17 "  Gamma                           (Dir.)                               REC #3"
see page 1 line 18 "                                                                mins."
see page 1 line 19 "                                                                     Wide Screen"
see page 1 line 20 "                                                               Western"
see page 1 line 21 "  Label:                DVD Disc(s)       MPAA :      DVD Disc       SND"
see page 1 line 22 "  Notes/Awards:                                                             :"
see page 1 line 24 "  TOTAL FILM(S) IN LIBRARY   3"
see page 1 line 26 "                                     Page  1"
