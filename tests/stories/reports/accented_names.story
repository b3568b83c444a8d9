# A list of an accented name, asked for in small letters.
film 1 Title="Orphée" Director="Jean Cocteau" Star1="María Casares" Format="D" Genre="FO" Year="1950"
film 2 Title="Élisa" Star1="María Ñandú" Format="V" Genre="FO" Year="1995"
film 3 Title="Zulu" Format="V"
sorted
clock 2026-11-21 09:05:07
start
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "maría"
beep
printed 1
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 54
see page 1 line 3 "        Reelora Prima Stars List   11-21-2026  09:05:07"
see page 1 line 6 "                          Films starring María Casares"
see page 1 line 8 "  Title                                   Date   Genre                 Format"
see page 1 line 10 "  Orphée                                  1950   Foreign               DVD"
see page 1 line 11 "  Élisa                                   1995   Foreign               VHS"
see page 1 line 13 "  TOTAL FILM(S) STARRING MARÍA ÑANDÚ IN YOUR COLLECTION IS 2."
see page 1 line 54 "                                     Page  1"
