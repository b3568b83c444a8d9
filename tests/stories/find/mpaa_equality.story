# MPAA search: only a rating of exactly those letters hits, not one that begins with them or contains them.
film 1 Title="Film 1" Rating="PG-13"
film 2 Title="Film 2" Rating="NC-17"
film 3 Title="Film 3" Rating="XPG"
film 4 Title="Film 4" Rating=" PG"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
see state CurrentRecNo 4
see state MatchPos 1
