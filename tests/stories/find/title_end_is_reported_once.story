# The title search reports its end once, though it resets twice, and Next is alive again.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "alien"
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
click cmdNext
see txtTitle "Brazil"
