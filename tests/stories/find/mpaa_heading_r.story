# MPAA search: the heading behind a hit on R.
film 1 Title="Film 1" Rating="X"
film 2 Title="Film 2" Rating="R"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "r"
see lblHead "MPAA Rating is  R    "
