# A part of a code matches: A finds AA, AD and AN, headed by the first and totalled with the last.
film 1 Title="Alpha" Format="D" Genre="AA" Year="1980"
film 2 Title="Beta" Format="V" Genre="AD" Year="1981"
film 3 Title="Gamma" Format="L" Genre="DR" Year="1982"
film 4 Title="Omega" Format="L" Genre="AN" Year="1983"
sorted
clock 2026-11-21 09:05:07
start
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "A"
beep
printed 1
box warning "Reelora Print Program" "End of file! Please wait.  There is 1 page to print." OK
see pages 1
see page 1 lines 52
see page 1 line 3 "       Reelora Prima Genre List   11-21-2026  09:05:07"
see page 1 line 5 "                      A list of Action Adventure Films"
see page 1 line 7 "  Title                                   Date   Genre                 Format"
see page 1 line 9 "  Alpha                                   1980   Action Adventure      DVD"
see page 1 line 10 "  Beta                                    1981   Adult                 VHS"
see page 1 line 11 "  Omega                                   1983   Animation             Laser"
see page 1 line 13 "  TOTAL Animation Films  3"
see page 1 line 52 "                                     Page  1"
