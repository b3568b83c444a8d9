# An empty answer leaves the headline and the page number, and no kind of view.
each REPORT        MENU
row  star-list     mnuStars
row  director-list mnuDirector
row  genre-list    mnuGenre

each REPORT        PROMPT
row  star-list     "Star's Last Name. To Print List: "
row  director-list "Director's Last Name. To Print List: "
row genre-list "Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n See "
+ "Genre List for more Abbrs."

each REPORT        HEADING
row  star-list     "Star Search Print Program"
row  director-list "Director Search Print Program"
row  genre-list    "Genre Search Print Program"

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
click {MENU}
input "Reelora Prima Print Program" "Enter {PROMPT}" cancel
see lblHead "{HEADING}"
see state PrintPending 1
see state ViewKind ""
click {MENU}
input "Reelora Prima Print Program" "Enter {PROMPT}" ""
see state PrintPending 1
