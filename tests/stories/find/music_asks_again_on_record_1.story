# Music search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "MUSIC COMPOSER SEARCH" "End of file!" OK
see state ResumeMusic 1
see state RowCursor 2
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "xyz"
beep
box warning "MUSIC COMPOSER SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeMusic 1
