# MPAA search: the heading behind a hit on TV-14.
film 1 Title="Film 1" Rating="X"
film 2 Title="Film 2" Rating="TV-14"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "tv-14"
see lblHead "TV Rating is  TV-14"
