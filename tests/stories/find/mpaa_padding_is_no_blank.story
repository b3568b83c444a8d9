# MPAA search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Rating="PG"
film 2 Title="Film 2" Rating="  pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg "
beep
box warning "MPAA RATINGS SEARCH" "The search for \"PG \" was not found. " OK
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
see state CurrentRecNo 1
