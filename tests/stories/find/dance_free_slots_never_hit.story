# Dance search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Choreography="Anna Karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " " "
see state CurrentRecNo 3
