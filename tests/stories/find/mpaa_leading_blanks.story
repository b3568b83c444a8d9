# MPAA search: leading blanks of the answer are part of the sought text.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="pg"
film 3 Title="Film 3" Rating="PG"
film 4 Title="Film 4" Rating="R"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " " pg"
beep
box warning "MPAA RATINGS SEARCH" "The search for \" PG\" was not found. " OK
