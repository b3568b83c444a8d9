# In a new film the MPAA rating opens its list, and G is the default.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRating
see focus List2
see List2.Visible yes
see List2.Items "G" "PG" "PG-13" "R" "NC-17" "XXX" "TV-Y" "TV-Y7" "TV-G" "TV-PG" "TV-14" "TV-MA" "NR"
see List2.ListIndex 0
see txtRating "G"
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
