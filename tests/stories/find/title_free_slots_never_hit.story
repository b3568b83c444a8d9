# Title search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Anna Karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " " "
see state CurrentRecNo 3
