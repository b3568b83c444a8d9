# With one key nothing is ever found, and small letters name no genre.
film 1 Title="Alpha" Genre="MU" Format="D"
sorted
clock 2026-11-21 09:05:07
start
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "mu"
box warning "Reelora Prima Print Program" "No  \"\" genre found!" OK
see state GenreFilter "mu"
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "MU"
box warning "Reelora Prima Print Program" "No  \"Musical\" genre found!" OK
