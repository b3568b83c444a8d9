# Every rating chosen with the arrow keys is stored.
each CODE  DOWNS
row  G     0
row  PG    1
row  PG-13 2
row  R     3
row  NC-17 4
row  XXX   5
row  TV-Y  6
row  TV-Y7 7
row  TV-G  8
row  TV-PG 9
row  TV-14 10
row  TV-MA 11
row  NR    12

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRating
key Down {DOWNS}
key Enter
see txtRating "{CODE}"
see focus txtPackage
key Alt+S
see film 3 Rating "{CODE}"
