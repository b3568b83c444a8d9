# The list closes the view's key file, goes on from its place, and stops.
film 1 Title="Alpha" Format="D" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="D" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="D" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click mnuByTitle
click mnuDVD
box question "Reelora Prima Print Program" ANY Yes
stop "Bad file name or number"
