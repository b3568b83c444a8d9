# The list closes the view's key file, goes on from its place, and stops.
film 1 Title="Alpha" Format="V" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="V" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="V" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click mnuByVHS
click mnuVHS
box question "Reelora Prima Print Program" ANY Yes
stop "Bad file name or number"
