# Title view: after its top it opens anew at its first key.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
film 3 Title="Metropolis" Format="D"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByTitle
click cmdPrevious
beep
box warning "ALPHA TITLE SEARCH" "Beginning of file encounter!" OK
click mnuByTitle
see txtTitle "Alien"
see state KeyFilePos 1
