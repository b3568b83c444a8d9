# Star search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Star1="Anna Karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " " "
see state CurrentRecNo 3
