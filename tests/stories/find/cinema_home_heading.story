# Cinema search after a reset: the heading behind a hit is the New hint, as the search leaves it.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click cmdReset
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see state CurrentRecNo 2
