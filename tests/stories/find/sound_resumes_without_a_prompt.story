# Sound search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuSound
see state CurrentRecNo 4
see state RowCursor 3
see lblHead "Viewing Sound Recording in karina"
click cmdMatch
beep
box warning "SOUND RECORDING SEARCH" "End of file!" OK
