# Star search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
start
click cmdReset
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
see lblHead "Viewing Files For  Anna Karina                   "
see state CurrentRecNo 2
