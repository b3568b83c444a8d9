# A key with record number 0 stops the report.
film 1 Title="Alpha" Format="D"
key Titlepra.Dat "Alpha" 0
count Titlepra 1
clock 2026-11-21 09:05:07
start
click mnuShort
box question "Reelora Prima Print Program" ANY Yes
stop "Bad record number"
