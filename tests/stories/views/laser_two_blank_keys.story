# Laser view with two blank keys in front: one is passed over, the second is taken, and its number leads to its film.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
film 3 Title="Cabaret" Format="L"
key Laserpra.Dat "" 1
key Laserpra.Dat "" 2
key Laserpra.Dat "Cabaret" 3
count Laserpra 3
start
click mnuByLaser
see txtTitle "Brazil"
see state KeyFilePos 2
see state CurrentRecNo 2
click cmdNext
see txtTitle "Cabaret"
see state KeyFilePos 3
