# Art search after a reset: the heading behind a hit is the New hint, as the search leaves it.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="Anna Karina"
film 3 Title="Film 3" SetDirection="Banana Split"
film 4 Title="Film 4" SetDirection="karina"
start
click cmdReset
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karin"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see state CurrentRecNo 2
