# An abridged list of one film: the figure 1 with the singular, column heads, total and page number.
each REPORT         FORMAT LINE  TEXT  LINE2        LINE3
row  abridged-laser L      Laser laser "Laser List" "TOTAL LASER FILM(S)   1"
row  abridged-dvd   D      DVD   DVD   "DVD List "  "  TOTAL DVD FILM(S)   1"

film 1 Title="Metropolis" Format="{FORMAT}" Genre="SF" Year="1927"
film 2 Title="Alpha" Format="V" Genre="CO" Year="1955"
sorted
clock 2026-11-21 09:05:07
start
click mnu{LINE}
box question "Reelora Prima Print Program" "Do you want to print {TEXT} disc library?  This list only prints Title, "
+ "Date, Genre and Format. It will take 1 page to print." Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 56
see page 1 line 2 "        Reelora Prima {LINE2}    11-21-2026  09:05:07"
see page 1 line 4 "  Title                                    Date     Genre                 Format"
see page 1 line 6 "Metropolis                                 1927     Science Fiction       {LINE}"
see page 1 line 7 "  ____________________________________________________________________________"
see page 1 line 9 "{LINE3}"
see page 1 line 56 "                                     Page  1"
see page 1 look 2 "bold"
see page 1 look 4 "bold underlined"
see page 1 look 6 "bold"
see state PrintPending 0
see state FirstRecordAdjust 0
see state ViewKind ""
see state ListKeyCount 53
