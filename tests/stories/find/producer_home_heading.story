# Producer search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click cmdReset
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
see lblHead " Produced  By Anna Karina                   "
see state CurrentRecNo 2
