# With no keys the list stops at record 0.
film 1 Title="Alpha" Director="A" Star1="A" Genre="AA" Format="D"
clock 2026-11-21 09:05:07
start
click mnuDirector
input "Reelora Prima Print Program" "Enter Director's Last Name. To Print List: " "A"
stop "Bad record number"
