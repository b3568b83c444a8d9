# Costume search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
click cmdReset
see state RowCursor 1
see state CostumeQuery "KARIN"
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "xyz"
beep
box warning "COSTUME DESIGNER SEARCH" "End of file!" OK
see state RowCursor 1
