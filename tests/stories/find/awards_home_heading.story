# Awards search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click cmdReset
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
see lblHead " Awards/Notes Anna Karina                                                 "
see state CurrentRecNo 2
