# A text that two stars share: the list is headed by the first match's name and totalled with the last one's; of two
# matches in one film the later star names it.
film 1 Title="Alpha" Star1="Grace Kelly" Star2="Gene Kelly" Format="D" Genre="DR" Year="1950"
film 2 Title="Beta" Star6="Moira Kelly" Format="V" Genre="DR" Year="1992"
film 3 Title="Gamma" Star1="Nobody" Format="L"
sorted
clock 2026-11-21 09:05:07
start
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "kelly"
beep
printed 1
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 54
see page 1 line 3 "        Reelora Prima Stars List   11-21-2026  09:05:07"
see page 1 line 6 "                            Films starring Gene Kelly"
see page 1 line 8 "  Title                                   Date   Genre                 Format"
see page 1 line 10 "  Alpha                                   1950   Drama                 DVD"
see page 1 line 11 "  Beta                                    1992   Drama                 VHS"
see page 1 line 13 "  TOTAL FILM(S) STARRING MOIRA KELLY IN YOUR COLLECTION IS 2."
see page 1 line 54 "                                     Page  1"
