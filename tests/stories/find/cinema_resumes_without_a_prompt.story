# Cinema search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuCinema
see state CurrentRecNo 4
see state RowCursor 3
see lblHead "    Viewing Files by Cinematographers"
click cmdMatch
beep
box warning "CINEMATOGRAPHER SEARCH" "End of file!" OK
