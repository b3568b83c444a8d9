# Director search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Director="Anna Karina"
film 2 Title="Film 2" Director="  karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karina "
beep
box warning "DIRECTOR SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karina"
see state CurrentRecNo 1
