# VHS view chosen in the middle of the Title view begins at its own first key.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
film 3 Title="Cabaret" Format="V"
film 4 Title="Dune" Format="V"
sorted
start
click mnuByTitle
click cmdNext
see state KeyFilePos 2
click mnuByVHS
see txtTitle "Cabaret"
see state ViewKind "VHS"
see state KeyFilePos 1
