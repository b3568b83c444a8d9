# VHS view: after its top it opens anew at its first key.
film 1 Title="Zulu" Format="V"
film 2 Title="Alien" Format="V"
film 3 Title="Metropolis" Format="V"
film 4 Title="Nosferatu" Format="L"
sorted
start
click mnuByVHS
click cmdPrevious
beep
box warning "ALPHA VHS TITLE SEARCH" "Beginning of file encounter!" OK
click mnuByVHS
see txtTitle "Alien"
see state KeyFilePos 1
