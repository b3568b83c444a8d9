# Laser view chosen in the middle of the DVD view begins at its own first key.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
film 3 Title="Cabaret" Format="L"
film 4 Title="Dune" Format="L"
sorted
start
click mnuByDVD
click cmdNext
see state KeyFilePos 2
click mnuByLaser
see txtTitle "Cabaret"
see state ViewKind "Laser"
see state KeyFilePos 1
