# Title search chosen again after Match continues without asking, from the film on the screen, which it tests again.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuFindTitle
see state CurrentRecNo 4
see state RowCursor 3
see lblHead "    Viewing Title  - karina                                  "
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
