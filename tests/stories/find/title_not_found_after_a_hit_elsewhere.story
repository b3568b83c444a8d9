# Title search from a film that is not the first, after a hit: finding nothing reports the end.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "xyz"
beep
box warning "TITLE SEARCH" "End of file!" OK
see state RowCursor 1
