# Cinema search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "CINEMATOGRAPHER SEARCH" "End of file!" OK
see state ResumeCinema 1
see state RowCursor 2
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "xyz"
beep
box warning "CINEMATOGRAPHER SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeCinema 1
