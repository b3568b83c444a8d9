# MPAA search: TV alone is no rating.
film 1 Title="Film 1" Rating="TV-14"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "TV"
beep
box warning "MPAA RATINGS SEARCH" "The search for \"TV\" was not found. " OK
