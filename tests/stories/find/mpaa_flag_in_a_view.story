# MPAA search with its flag set, chosen in a view behind record 1: it asks, and the position is 0.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
key Titlepra.Dat "c" 3
key Titlepra.Dat "d" 4
count Titlepra 2
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click cmdMatch
click cmdReset
click mnuByTitle
see state CurrentRecNo 3
see state KeyFilePos 1
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
see state CurrentRecNo 2
see state KeyFilePos 0
