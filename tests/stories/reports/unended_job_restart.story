# The unended lines are gone with the run.
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
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "Mifune"
box warning "Reelora Prima Print Program" "No films Staring \"MIFUNE\" found!" OK
restart
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "Stewart"
beep
printed 1
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 54
see page 1 line 3 "        Reelora Prima Stars List   11-21-2026  09:05:07"
see page 1 line 6 "                          Films starring James Stewart"
see page 1 line 8 "  Title                                   Date   Genre                 Format"
see page 1 line 10 "  Rear Window                             1954   Mystery Suspense      Laser"
see page 1 line 11 "  Vertigo                                 1958   Mystery Suspense      DVD"
see page 1 line 13 "  TOTAL FILM(S) STARRING JAMES STEWART IN YOUR COLLECTION IS 2."
see page 1 line 54 "                                     Page  1"
