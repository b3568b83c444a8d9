# Laser view: after its top it opens anew at its first key.
film 1 Title="Zulu" Format="L"
film 2 Title="Alien" Format="L"
film 3 Title="Metropolis" Format="L"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByLaser
click cmdPrevious
beep
box warning "ALPHA LASER TITLE SEARCH" "Beginning of file encounter!" OK
click mnuByLaser
see txtTitle "Alien"
see state KeyFilePos 1
