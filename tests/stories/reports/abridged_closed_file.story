# An abridged list closes the view's key file, continues from its place and stops.
each REPORT         FORMAT MENU       MENU2
row  abridged-dvd   D      mnuByTitle mnuDVD
row  abridged-vhs   V      mnuByVHS   mnuVHS
row  abridged-laser L      mnuByLaser mnuLaser

film 1 Title="Alpha" Format="{FORMAT}" Genre="DR" Year="1951" Director="Ann Smith" Star1="Ann Smith"
film 2 Title="Beta" Format="{FORMAT}" Genre="CO" Year="1952" Director="Ann Smith" Star1="Ann Smith"
film 3 Title="Gamma" Format="{FORMAT}" Genre="WE" Year="1953" Director="Ann Smith" Star1="Ann Smith"
sorted
clock 2026-11-21 09:05:07
start
click {MENU}
click {MENU2}
box question "Reelora Prima Print Program" ANY Yes
stop "Bad file name or number"
