# Dance search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Choreography="Anna Karina"
film 2 Title="Film 2" Choreography="  karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karina "
beep
box warning "CHOREOGRAPHER SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karina"
see state CurrentRecNo 1
