# Writer search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "WRITER SEARCH" "End of file!" OK
see state ResumeWriter 1
see state RowCursor 2
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "xyz"
beep
box warning "WRITER SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeWriter 1
