# DVD view chosen in the middle of the VHS view begins at its own first key.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
film 3 Title="Cabaret" Format="D"
film 4 Title="Dune" Format="D"
sorted
start
click mnuByVHS
click cmdNext
see state KeyFilePos 2
click mnuByDVD
see txtTitle "Cabaret"
see state ViewKind "DVD"
see state KeyFilePos 1
