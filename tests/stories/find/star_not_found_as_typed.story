# Star search: the text of the not-found box is the one typed, blanks and small letters included.
film 1 Title="Film 1" Star1="Aa"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " " Bo gart"
beep
box warning "STAR 1 SEARCH" "The search for \" Bo gart\" was not found." OK
see state StarQuery " BO GART"
see state StarTyped " Bo gart"
