# A rating chosen by mouse in Edit is stored.
each RATING ITEM
row  g      G
row  nc_17  NC-17
row  nr     NR
row  pg_13  PG-13
row  pg     PG
row  r      R
row  tv_14  TV-14
row  tv_g   TV-G
row  tv_ma  TV-MA
row  tv_pg  TV-PG
row  tv_y7  TV-Y7
row  tv_y   TV-Y
row  xxx    XXX

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
pick List2 "{ITEM}"
see txtRating "{ITEM}"
see focus cmdSave
click cmdSave
see film 1 Rating "{ITEM}"
