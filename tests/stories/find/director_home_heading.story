# Director search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click cmdReset
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
see lblHead " Viewing Files for Director Anna Karina                   "
see state CurrentRecNo 2
