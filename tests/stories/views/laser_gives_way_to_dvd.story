# DVD view chosen in the middle of the Laser view begins at its own first key.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
film 3 Title="Cabaret" Format="D"
film 4 Title="Dune" Format="D"
sorted
start
click mnuByLaser
click cmdNext
see state KeyFilePos 2
click mnuByDVD
see txtTitle "Cabaret"
see state ViewKind "DVD"
see state KeyFilePos 1
