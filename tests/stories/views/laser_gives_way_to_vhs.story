# VHS view chosen in the middle of the Laser view begins at its own first key.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
film 3 Title="Cabaret" Format="V"
film 4 Title="Dune" Format="V"
sorted
start
click mnuByLaser
click cmdNext
see state KeyFilePos 2
click mnuByVHS
see txtTitle "Cabaret"
see state ViewKind "VHS"
see state KeyFilePos 1
