# MPAA search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Rating="R 1"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " " "
beep
box warning "MPAA RATINGS SEARCH" "The search for \" \" was not found. " OK
