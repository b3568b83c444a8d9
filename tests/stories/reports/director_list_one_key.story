# With one key nothing is ever found; the text is in capitals in the message.
film 1 Title="Alpha" Director="Jean Renoir" Format="D"
sorted
clock 2026-11-21 09:05:07
start
click mnuDirector
input "Reelora Prima Print Program" "Enter Director's Last Name. To Print List: " "renoir"
box warning "Reelora Prima Print Program" "No films directed by \"RENOIR\" found!" OK
