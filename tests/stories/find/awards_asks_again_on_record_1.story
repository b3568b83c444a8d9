# Awards search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "AWARDS SEARCH" "End of file!" OK
see state ResumeAwards 1
see state RowCursor 2
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "xyz"
beep
box warning "AWARDS SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeAwards 1
