# Writer search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuWriter
see state CurrentRecNo 4
see state RowCursor 3
see lblHead " Written by karina"
click cmdMatch
beep
box warning "WRITER SEARCH" "End of file!" OK
