# Title search after a reset: the heading after a hit is the search's own nonetheless.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click cmdReset
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
see lblHead "    Viewing Title  - Anna Karina                             "
see state CurrentRecNo 2
