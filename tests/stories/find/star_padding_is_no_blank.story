# Star search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Star1="Anna Karina"
film 2 Title="Film 2" Star1="  karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina "
beep
box warning "STAR 1 SEARCH" "The search for \"karina \" was not found." OK
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina"
see state CurrentRecNo 1
