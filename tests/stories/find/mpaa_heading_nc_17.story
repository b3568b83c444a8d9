# MPAA search: the heading behind a hit on NC-17.
film 1 Title="Film 1" Rating="X"
film 2 Title="Film 2" Rating="NC-17"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "nc-17"
see lblHead "MPAA Rating is  NC-17"
