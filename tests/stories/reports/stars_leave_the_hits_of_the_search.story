# The star list keeps to itself where it found the name; the search's own positions stay.
film 1 Title="Film 1" Star2="Anna Karina"
film 2 Title="Film 2" Star2="Anna Karina"
film 3 Title="Film 3" Star3="Banana Split"
sorted
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina"
see state StarHit2 6
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "nn"
beep
printed 1
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see state StarHit2 6
see state StarHit3 0
