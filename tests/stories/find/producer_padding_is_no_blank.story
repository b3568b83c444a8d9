# Producer search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Producer="Anna Karina"
film 2 Title="Film 2" Producer="  karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karina "
beep
box warning "PRODUCER SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karina"
see state CurrentRecNo 1
