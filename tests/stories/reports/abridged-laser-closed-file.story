# The list closes the view's key file, goes on from its place, and stops.
film 1 Title="Alpha" Format="L" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="L" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="L" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click mnuByLaser
click mnuLaser
box question "Reelora Prima Print Program" ANY Yes
stop "Bad file name or number"
