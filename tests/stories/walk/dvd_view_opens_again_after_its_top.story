# DVD view: after its top it opens anew at its first key.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
film 3 Title="Metropolis" Format="D"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByDVD
click cmdPrevious
beep
box warning "ALPHA DVD TITLE SEARCH" "Begining of file encountered!" OK
click mnuByDVD
see txtTitle "Alien"
see state KeyFilePos 1
