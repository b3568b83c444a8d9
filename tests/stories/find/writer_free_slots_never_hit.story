# Writer search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Written="Anna Karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " " "
see state CurrentRecNo 3
