# Laser view chosen again in the middle: the same key is shown, nothing starts anew.
film 1 Title="Zulu" Format="L"
film 2 Title="Alien" Format="L"
film 3 Title="Metropolis" Format="L"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByLaser
click cmdNext
see txtTitle "Metropolis"
click mnuByLaser
see txtTitle "Metropolis"
see state KeyFilePos 2
