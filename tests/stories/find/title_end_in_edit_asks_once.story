# The title search chosen in Edit: its first reset asks about the work, its second no more.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "brazil"
click cmdEdit
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
