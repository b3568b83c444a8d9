# Title search: a blank after the word finds nothing in the field's own padding, and the field's leading blanks do
# not count.
film 1 Title="Anna Karina"
film 2 Title="  karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karina "
beep
box warning "TITLE SEARCH" "The search for\"KARINA \" was not found." OK
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karina"
see state CurrentRecNo 1
