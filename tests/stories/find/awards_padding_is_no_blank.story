# Awards search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Awards="Anna Karina"
film 2 Title="Film 2" Awards="  karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karina "
beep
box warning "AWARDS SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karina"
see state CurrentRecNo 1
