# Costume search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" Costume="Anna Karina"
film 2 Title="Film 2" Costume="  karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karina "
beep
box warning "CHOREOGRAPHER SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karina"
see state CurrentRecNo 1
