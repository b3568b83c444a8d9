# What a genre list leaves in the run state: the words of its closing message, the last key and the genre's name.
film 1 Title="Vertigo" Format="D" Genre="MS" Year="1958"
film 2 Title="Rear Window" Format="L" Genre="MS" Year="1954"
film 3 Title="Zulu" Format="V" Genre="AA" Year="1964"
sorted
clock 2026-11-21 09:05:07
start
click mnuGenre
input "Reelora Prima Print Program" "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   "
+ "Animation\r\nCO   Comedy\r\n See Genre List for more Abbrs." "MS"
beep
printed 1
box warning "Reelora Print Program" "End of file! Please wait.  There is 1 page to print." OK
see state ClosingLead "There is "
see state ClosingTail " page to print."
see state KeyRecNoText "0000003\r\n"
see state KeyLengthWord 49
see state GenreQueryName "Mystery Suspense"
