# A list by name that finds nothing says so; Reset follows.
each REPORT        MENU
row  star-list     mnuStars
row  genre-list    mnuGenre
row  director-list mnuDirector

each REPORT        PROMPT
row  star-list     "Star's Last Name. To Print List: "
row genre-list "Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n See "
+ "Genre List for more Abbrs."
row  director-list "Director's Last Name. To Print List: "

each REPORT        ANSWER   TEXT
row  star-list     Mifune   "No films Staring \"MIFUNE\" found!"
row  genre-list    WE       "No  \"Western\" genre found!"
row  director-list Kurosawa "No films directed by \"KUROSAWA\" found!"

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
input "Reelora Prima Print Program" "Enter {PROMPT}" "{ANSWER}"
box warning "Reelora Prima Print Program" "{TEXT}" OK
see state PrintPending 0
see state KeyFilePos 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
