# Dance search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click cmdReset
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
see lblHead "Choreography By Anna Karina                   "
see state CurrentRecNo 2
