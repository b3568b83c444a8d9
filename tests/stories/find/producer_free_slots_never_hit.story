# Producer search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Producer="Anna Karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " " "
see state CurrentRecNo 3
