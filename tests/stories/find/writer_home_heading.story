# Writer search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click cmdReset
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
see lblHead " Written by Anna Karina"
see state CurrentRecNo 2
