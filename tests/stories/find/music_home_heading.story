# Music search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click cmdReset
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
see lblHead "   Music Composed By Anna Karina                   "
see state CurrentRecNo 2
