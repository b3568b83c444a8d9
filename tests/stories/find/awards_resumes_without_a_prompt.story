# Awards search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuAwards
see state CurrentRecNo 4
see state RowCursor 3
see lblHead " Awards/Notes karina                                                      "
click cmdMatch
beep
box warning "AWARDS SEARCH" "End of file!" OK
