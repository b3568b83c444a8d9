# VHS view chosen again in the middle: the same key is shown, nothing starts anew.
film 1 Title="Zulu" Format="V"
film 2 Title="Alien" Format="V"
film 3 Title="Metropolis" Format="V"
film 4 Title="Nosferatu" Format="L"
sorted
start
click mnuByVHS
click cmdNext
see txtTitle "Metropolis"
click mnuByVHS
see txtTitle "Metropolis"
see state KeyFilePos 2
