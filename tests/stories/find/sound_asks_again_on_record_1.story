# Sound search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
click cmdMatch
click cmdMatch
beep
box warning "SOUND RECORDING SEARCH" "End of file!" OK
see state ResumeSound 1
see state RowCursor 2
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "xyz"
beep
box warning "SOUND RECORDING SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeSound 1
