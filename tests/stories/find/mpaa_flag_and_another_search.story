# MPAA search's flag is cleared by another search.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click cmdMatch
see state ResumeMPAA 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeMPAA 0
see state ResumeStar 0
