# MPAA search: the heading after a hit, by rating.
each RATING FILM2 ANSWER HEADING
row  nc_17  NC-17 nc-17  "MPAA Rating is  NC-17"
row  r      R     r      "MPAA Rating is  R    "
row  tv_14  TV-14 tv-14  "TV Rating is  TV-14"
row  tv_g   TV-G  tv-g   "TV Rating is  TV-G "

film 1 Title="Film 1" Rating="X"
film 2 Title="Film 2" Rating="{FILM2}"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "{ANSWER}"
see lblHead "{HEADING}"
