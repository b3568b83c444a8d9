# In Edit the MPAA rating opens its list.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
see focus List2
see List2.Visible yes
see List2.Items "G" "PG" "PG-13" "R" "NC-17" "XXX" "TV-Y" "TV-Y7" "TV-G" "TV-PG" "TV-14" "TV-MA" "NR"
see txtRating "G"
