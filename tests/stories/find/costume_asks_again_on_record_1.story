# Costume search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "COSTUME DESIGNER SEARCH" "End of file!" OK
see state ResumeCostume 1
see state RowCursor 2
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "xyz"
beep
box warning "CHOREOGRAPHER SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeCostume 1
