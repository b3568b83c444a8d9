# The last key counts once something was found before.
film 1 Title="Vertigo" Director="Alfred Hitchcock" Star1="James Stewart" Star2="Kim Novak" Format="D" Genre="MS"
+ Year="1958"
film 2 Title="Solaris" Director="Andrei Tarkovsky" Star1="Natalya Bondarchuk" Format="V" Genre="SF" Year="1972"
film 3 Title="Rear Window" Director="Alfred Hitchcock" Star1="Grace Kelly" Star4="James Stewart" Format="L" Genre="MS"
+ Year="1954"
film 4 Title="Zulu" Director="Cy Endfield" Star1="Stanley Baker" Star2="Michael Caine" Format="V" Genre="AA" Year="1964"
film 5 Title="Bambi" Director="David Hand" Format="D" Genre="AN" Year="1942"
film 6 Title="Alfie" Director="Cy Endfield" Star3="Michael Caine" Format="V" Genre="AA" Year="1966"
sorted
clock 2026-11-21 09:05:07
start
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "AA"
beep
printed 1
box warning "Reelora Print Program" "End of file! Please wait.  There is 1 page to print." OK
see pages 1
see page 1 lines 52
see page 1 line 3 "       Reelora Prima Genre List   11-21-2026  09:05:07"
see page 1 line 5 "                      A list of Action Adventure Films"
see page 1 line 7 "  Title                                   Date   Genre                 Format"
see page 1 line 9 "  Alfie                                   1966   Action Adventure      VHS"
see page 1 line 10 "  Zulu                                    1964   Action Adventure      VHS"
see page 1 line 12 "  TOTAL Action Adventure Films  2"
see page 1 line 52 "                                     Page  1"
