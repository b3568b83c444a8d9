# Awards search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Awards="Anna Karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " " "
see state CurrentRecNo 3
