# What a list that found nothing has printed stays and is taken by the next document.
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
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "WE"
box warning "Reelora Prima Print Program" "No  \"Western\" genre found!" OK
click mnuDirector
input "Reelora Prima Print Program" "Enter Director's Last Name. To Print List: " "Hitchcock"
beep
printed 1
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see pages 1
see page 1 lines 60
see page 1 line 3 "        Reelora Prima Stars List   11-21-2026  09:05:07"
see page 1 line 8 "       Reelora Prima Genre List   11-21-2026  09:05:07"
see page 1 line 10 "        Reelora Prima Directors List   11-21-2026  09:05:07"
see page 1 line 11 "                        Films Directed by Alfred Hitchcock"
see page 1 line 13 "  Title                                   Date   Genre                 Format"
see page 1 line 15 "  Rear Window                             1954   Mystery Suspense      Laser"
see page 1 line 16 "  Vertigo                                 1958   Mystery Suspense      DVD"
see page 1 line 18 "  TOTAL FILM(S) DIRECTED BY ALFRED HITCHCOCK IN YOUR COLLECTION IS 2."
see page 1 line 60 "                                     Page  1"
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
see page 1 line 6 "Bambi                                      1942     Animation             DVD"
see page 1 line 7 "Rear Window                                1954     Mystery Suspense      Laser"
see page 1 line 8 "Solaris                                    1972     Science Fiction       VHS"
see page 1 line 9 "Vertigo                                    1958     Mystery Suspense      DVD"
see page 1 line 10 "Zulu                                       1964     Action Adventure      VHS"
see page 1 line 12 "TOTAL FILM(S)   5"
see page 1 line 55 "                                  Page  1"
