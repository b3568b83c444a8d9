# A key that points past the master file prints the film before it again, under the number of the key.
film 1 Title="Metropolis" Director="Fritz Lang" Star1="Brigitte Helm" Star2="Alfred Abel" Format="V" NumReel="1"
+ Genre="SF" Time="153" Year="1927" CassNo="00012" Label="Kino" Letter="T" Color1="B & W" Rating="NR" Sound="Silent"
key Titlepra.Dat "Metropolis" 1
key Titlepra.Dat "Gone" 7
count Titlepra 2
clock 2026-11-21 09:05:07
start
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
see page 1 line 5 "  Metropolis                     Fritz Lang (Dir.)                     REC #1"
see page 1 line 6 "  Brigitte Helm                  Alfred Abel                   153 mins.1927"
see page 1 line 7 "                                                               B & W TV 1.33:1"
see page 1 line 8 "                                                               Science Fiction"
see page 1 line 9 "  Label:Kino            VHS 1 Cass(s).    MPAA :NR    Cass# 00012    SND: Silent"
see page 1 line 10 "  Notes/Awards:                                                             :"
see page 1 line 11 "  Metropolis                     Fritz Lang (Dir.)                     REC #7"
see page 1 line 12 "  Brigitte Helm                  Alfred Abel                   153 mins.1927"
see page 1 line 13 "                                                               B & W TV 1.33:1"
see page 1 line 14 "                                                               Science Fiction"
see page 1 line 15 "  Label:Kino            VHS 1 Cass(s).    MPAA :NR    Cass# 00012    SND: Silent"
see page 1 line 16 "  Notes/Awards:                                                             :"
see page 1 line 18 "  TOTAL FILM(S) IN LIBRARY   2"
see page 1 line 20 "                                     Page  1"
