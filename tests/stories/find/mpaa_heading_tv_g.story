# MPAA search: the heading behind a hit on TV-G.
film 1 Title="Film 1" Rating="X"
film 2 Title="Film 2" Rating="TV-G"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "tv-g"
see lblHead "TV Rating is  TV-G "
