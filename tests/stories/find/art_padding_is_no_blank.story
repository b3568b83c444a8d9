# Art search: a blank behind the word finds nothing in the field's own padding, and the field's leading blanks are none.
film 1 Title="Film 1" SetDirection="Anna Karina"
film 2 Title="Film 2" SetDirection="  karina"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karina "
beep
box warning "ART DIRECTOR SEARCH" "The search for \"KARINA \" was not found. " OK
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karina"
see state CurrentRecNo 1
