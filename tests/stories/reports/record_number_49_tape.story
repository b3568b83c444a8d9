# A tape under a key with "49" is shown as the letter V in its list.
films 1 48 Title=""
film 49 Title="Zulu" Format="V" Genre="AA"
sorted
clock 2026-11-21 09:05:07
start
click mnuVHS
box question "Reelora Prima Print Program" "Do you want to print VHS library?  This list only prints Title, Date, "
+ "Genre and Format. It will take 1 page to print." Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 55
see page 1 line 2 "        Reelora Prima VHS List   11-21-2026  09:05:07"
see page 1 line 4 "  Title                                    Date     Genre                 Format"
see page 1 line 6 "Zulu                                                Action Adventure      V"
see page 1 line 8 "TOTAL VHS FILM(S)  1"
see page 1 line 55 "                                     Page  1"
