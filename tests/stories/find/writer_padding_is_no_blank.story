# Writer search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Written="Anna Karina"
film 2 Title="Film 2" Written="  karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karina "
beep
box warning "WRITER SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karina"
see state CurrentRecNo 1
