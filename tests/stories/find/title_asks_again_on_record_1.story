# Title search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start
# from 0.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
see state ResumeTitle 1
see state RowCursor 2
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "xyz"
beep
box warning "TITLE SEARCH" "The search for\"XYZ\" was not found." OK
see state RowCursor 0
see state ResumeTitle 1
