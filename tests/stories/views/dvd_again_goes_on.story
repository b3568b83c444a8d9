# DVD view chosen again in the middle: the same key is shown, nothing starts anew.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
film 3 Title="Metropolis" Format="D"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByDVD
click cmdNext
see txtTitle "Metropolis"
click mnuByDVD
see txtTitle "Metropolis"
see state KeyFilePos 2
