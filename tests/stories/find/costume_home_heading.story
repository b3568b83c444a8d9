# Costume search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click cmdReset
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
see lblHead " Viewing For Costume Designer Anna Karina                   "
see state CurrentRecNo 2
