# The stars list finds a name in each of the six stars of a film and prints it above the films.
each STAR
row  Star1
row  Star2
row  Star3
row  Star4
row  Star5
row  Star6

film 1 Title="Alien" {STAR}="Yaphet Kotto" Format="D"
film 2 Title="Brazil" Star1="Jonathan Pryce" Format="D"
film 3 Title="Zulu" Star1="Stanley Baker" Format="D"
sorted
start
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "kotto"
beep
printed 1
box warning "Reelora Prima Print Program" "End of file!   Please wait. There is 1 page to print." OK
see page 1 line 6 "                          Films starring Yaphet Kotto"
see page 1 line 12 "  TOTAL FILM(S) STARRING YAPHET KOTTO IN YOUR COLLECTION IS 1."
