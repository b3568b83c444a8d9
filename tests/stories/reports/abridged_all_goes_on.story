# Within its own view the list prints from the view's place on.
film 1 Title="Alpha" Format="D" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="D" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="D" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click mnuByTitle
click cmdNext
see txtTitle "Beta"
see state KeyFilePos 2
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
see page 1 line 6 "Beta                                       1952     Comedy                DVD"
see page 1 line 7 "Gamma                                      1953     Western               DVD"
see page 1 line 9 "TOTAL FILM(S)   2"
see page 1 line 55 "                                  Page  1"
