# Sound search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Sound="Anna Karina"
film 2 Title="Film 2" Sound="  karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karina "
beep
box warning "SOUND RECORDING SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karina"
see state CurrentRecNo 1
