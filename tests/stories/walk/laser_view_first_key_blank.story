# Laser view with a blank first key: it opens on the second; Back goes to the first and is sent on again, and the top is never told.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
film 3 Title="Cabaret" Format="L"
key Laserpra.Dat "" 1
key Laserpra.Dat "Brazil" 2
key Laserpra.Dat "Cabaret" 3
count Laserpra 3
start
click mnuByLaser
see txtTitle "Brazil"
see state KeyFilePos 2
click cmdPrevious
see txtTitle "Brazil"
see state KeyFilePos 2
click cmdPrevious
see txtTitle "Brazil"
see state KeyFilePos 2
click cmdNext
see txtTitle "Cabaret"
see state KeyFilePos 3
