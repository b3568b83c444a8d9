# Costume search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Costume="Anna Karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " " "
see state CurrentRecNo 3
