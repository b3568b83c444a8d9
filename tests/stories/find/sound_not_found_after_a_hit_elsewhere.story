# Sound search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "xyz"
beep
box warning "SOUND RECORDING SEARCH" "End of file!" OK
see state RowCursor 1
