# The title of the star list counts its lines when it is printed, also if a blank last key ends the list without a
# match: the page number stands on line 52.
film 1 Title="Alien" Format="V" Genre="SF" Star1="Tom Skerritt"
sorted
key Titlepra.Dat "" 0
start
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "nobody"
beep
printed 1
box warning "Reelora Prima Print Program" ANY OK
see page 1 line 52 "                                     Page  1 "
see page 1 lines 52
