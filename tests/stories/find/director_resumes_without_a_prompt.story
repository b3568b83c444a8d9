# Director search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuFindDirector
see state CurrentRecNo 4
see state RowCursor 3
see lblHead " Viewing Files for Director karina                        "
click cmdMatch
beep
box warning "DIRECTOR SEARCH" "End of file!" OK
