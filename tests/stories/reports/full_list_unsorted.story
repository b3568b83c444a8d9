# The full list does not ask whether the records are sorted: with no keys it stops at record 0.
film 1 Title="Alpha" Format="D"
clock 2026-11-21 09:05:07
start
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" Yes
stop "Bad record number"
