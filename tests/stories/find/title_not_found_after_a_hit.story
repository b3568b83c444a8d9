# Title search after a hit and a reset that finds nothing says so nonetheless: on record 1 it counts again from 0.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click cmdReset
see state RowCursor 1
see state TitleQuery "KARIN"
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "xyz"
beep
box warning "TITLE SEARCH" "The search for\"XYZ\" was not found." OK
see state RowCursor 0
