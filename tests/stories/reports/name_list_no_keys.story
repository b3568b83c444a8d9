# Without keys a list by name stops at record 0.
each REPORT        MENU
row  director-list mnuDirector
row  genre-list    mnuGenre
row  star-list     mnuStars

each REPORT        PROMPT
row  director-list "Director's Last Name. To Print List: "
row genre-list "Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n See "
+ "Genre List for more Abbrs."
row  star-list     "Star's Last Name. To Print List: "

film 1 Title="Alpha" Director="A" Star1="A" Genre="AA" Format="D"
clock 2026-11-21 09:05:07
start
click {MENU}
input "Reelora Prima Print Program" "Enter {PROMPT}" "A"
stop "Bad record number"
