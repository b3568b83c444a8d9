# VHS view with two blank keys in front: one is passed over, the second is taken, and its number leads to its film.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
film 3 Title="Cabaret" Format="V"
key VHSpra.Dat "" 1
key VHSpra.Dat "" 2
key VHSpra.Dat "Cabaret" 3
count VHSpra 3
start
click mnuByVHS
see txtTitle "Brazil"
see state KeyFilePos 2
see state CurrentRecNo 2
click cmdNext
see txtTitle "Cabaret"
see state KeyFilePos 3
