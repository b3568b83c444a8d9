# Awards search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
click cmdReset
see state RowCursor 1
see state AwardsQuery "KARIN"
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "xyz"
beep
box warning "AWARDS SEARCH" "End of file!" OK
see state RowCursor 1
