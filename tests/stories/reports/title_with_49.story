# "49" in the last key leaves EditMode set: at the title's start Reset asks about unsaved work.
film 1 Title="Alpha" Format="D"
film 2 Title="49th Parallel" Format="V" Genre="DR"
film 3 Title="12 Angry Men" Format="L"
key Titlepra.Dat "12 Angry Men" 3
key Titlepra.Dat "49th Parallel" 2
count Titlepra 2
clock 2026-11-21 09:05:07
start
click mnuAll
box question "Reelora Prima Print Program" ANY Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There is 1 Page to print." OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see pages 1
see page 1 lines 20
see page 1 line 2 "   Reelora Prima All Titles Full List  11-21-2026  09:05:07"
see page 1 line 4 "  ____________________________________________________________________________"
see page 1 line 5 "  12 Angry Men                    (Dir.)                               REC #3"
see page 1 line 6 "                                                                mins."
see page 1 line 9 "  Label:                Laser  Disc(s)    MPAA :                     SND:"
see page 1 line 10 "  Notes/Awards:                                                             :"
see page 1 line 11 "  49th Parallel                   (Dir.)                               REC #2"
see page 1 line 12 "                                                                mins."
see page 1 line 14 "                                                               Drama"
see page 1 line 15 "  Label:                VHS  Cass(s).     MPAA :      Cass#          SND:"
see page 1 line 16 "  Notes/Awards:                                                             :"
see page 1 line 18 "  TOTAL FILM(S) IN LIBRARY   2"
see page 1 line 20 "                                     Page  1"
see state EditMode 0
