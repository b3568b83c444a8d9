# Director search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Director="Anna Karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " " "
see state CurrentRecNo 3
