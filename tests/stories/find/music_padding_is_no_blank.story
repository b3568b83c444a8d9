# Music search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Music="Anna Karina"
film 2 Title="Film 2" Music="  karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karina "
beep
box warning "MUSIC COMPOSER SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karina"
see state CurrentRecNo 1
