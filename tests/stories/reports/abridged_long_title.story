# A title of 40 characters is next to its year; a film of no format has no word.
film 1 Title="XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX" Year="1960" Genre="SI"
sorted
clock 2026-11-21 09:05:07
start
click mnuShort
box question "Reelora Prima Print Program" "Are you sure you want to Print Abridged List?,  This List only prints "
+ "Title, Date, Genre and Format. It will take 1 page to print." Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 55
see page 1 line 2 "    Reelora Prima Short Print List    11-21-2026  09:05:07"
see page 1 line 4 "  Title                                    Date     Genre                 Format"
see page 1 line 6 "XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX   1960     Special Interest"
see page 1 line 8 "TOTAL FILM(S)   1"
see page 1 line 55 "                                  Page  1"
