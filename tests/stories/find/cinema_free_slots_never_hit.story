# Cinema search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Cinematographer="Anna Karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " " "
see state CurrentRecNo 3
