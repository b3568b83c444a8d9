# VHS view with a blank first key: it opens on the second; Back goes to the first and is sent on again, and the top is never told.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
film 3 Title="Cabaret" Format="V"
key VHSpra.Dat "" 1
key VHSpra.Dat "Brazil" 2
key VHSpra.Dat "Cabaret" 3
count VHSpra 3
start
click mnuByVHS
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
