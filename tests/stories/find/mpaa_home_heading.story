# MPAA search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click cmdReset
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
see lblHead "MPAA Rating is  PG   "
see state CurrentRecNo 2
