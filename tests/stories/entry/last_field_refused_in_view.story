# In view the refusal of the last field sends the focus away, which saves and sorts.
film 1 Title="The Alien" Format="V"
film 2 Title="Brazil" Format="D"
start
click optnoteson
click txtRatings
box warning "Your Rating" "Hit edit to change." OK
beep
beep
beep
beep
see focus cmdSave
see film 1 Title "Alien, The"
see key Titlepra.Dat 1 "Alien, The" 1
see key DVDpra.Dat 1 "Brazil" 2
see file Last " 1 \r\n"
see state ViewKind "DVDpra"
