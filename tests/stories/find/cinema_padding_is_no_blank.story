# Cinema search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Cinematographer="Anna Karina"
film 2 Title="Film 2" Cinematographer="  karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karina "
beep
box warning "CINEMATOGRAPHER SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karina"
see state CurrentRecNo 1
