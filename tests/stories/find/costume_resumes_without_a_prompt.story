# Costume search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuCostume
see state CurrentRecNo 4
see state RowCursor 3
see lblHead " Viewing For Costume Designer karina                        "
click cmdMatch
beep
box warning "COSTUME DESIGNER SEARCH" "End of file!" OK
