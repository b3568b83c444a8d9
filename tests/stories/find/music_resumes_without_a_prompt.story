# Music search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuMusic
see state CurrentRecNo 4
see state RowCursor 3
see lblHead "   Music Composed By karina                        "
click cmdMatch
beep
box warning "MUSIC COMPOSER SEARCH" "End of file!" OK
