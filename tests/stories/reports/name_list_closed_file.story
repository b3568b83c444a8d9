# A list by name closes the view's key file, continues from its place and stops.
each REPORT        MENU
row  director-list mnuDirector
row  genre-list    mnuGenre
row  star-list     mnuStars

each REPORT        PROMPT
row  director-list "Director's Last Name. To Print List: "
row genre-list "Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n See "
+ "Genre List for more Abbrs."
row  star-list     "Star's Last Name. To Print List: "

film 1 Title="Alpha" Format="D" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="D" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="D" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click mnuByTitle
click {MENU}
input "Reelora Prima Print Program" "Enter {PROMPT}" "A"
stop "Bad file name or number"
