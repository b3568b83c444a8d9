# With no keys the list stops at record 0.
film 1 Title="Alpha" Director="A" Star1="A" Genre="AA" Format="D"
clock 2026-11-21 09:05:07
start
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "A"
stop "Bad record number"
