# One film.
film 1 Title="Vertigo" Director="Alfred Hitchcock" Star1="James Stewart" Star2="Kim Novak" Format="D" Genre="MS"
+ Year="1958"
film 2 Title="Solaris" Director="Andrei Tarkovsky" Star1="Natalya Bondarchuk" Format="V" Genre="SF" Year="1972"
film 3 Title="Rear Window" Director="Alfred Hitchcock" Star1="Grace Kelly" Star4="James Stewart" Format="L" Genre="MS"
+ Year="1954"
film 4 Title="Zulu" Director="Cy Endfield" Star1="Stanley Baker" Star2="Michael Caine" Format="V" Genre="AA" Year="1964"
film 5 Title="Bambi" Director="David Hand" Format="D" Genre="AN" Year="1942"
sorted
clock 2026-11-21 09:05:07
start
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "sf"
beep
printed 1
box warning "Reelora Print Program" "End of file! Please wait.  There is 1 page to print." OK
see pages 1
see page 1 lines 52
see page 1 line 3 "       Reelora Prima Genre List   11-21-2026  09:05:07"
see page 1 line 5 "                       A list of Science Fiction Films"
see page 1 line 7 "  Title                                   Date   Genre                 Format"
see page 1 line 9 "  Solaris                                 1972   Science Fiction       VHS"
see page 1 line 11 "  TOTAL Science Fiction Films  1"
see page 1 line 52 "                                     Page  1"
