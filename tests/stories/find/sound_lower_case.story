# Sound search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Sound="nobody"
film 2 Title="Film 2" Sound="pere"
film 3 Title="Film 3" Sound="père"
film 4 Title="Film 4" Sound="PÈRE"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
