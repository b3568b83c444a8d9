# DVD view with two blank keys in front: one is passed over, the second is taken, and its number leads to its film.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
film 3 Title="Cabaret" Format="D"
key DVDpra.Dat "" 1
key DVDpra.Dat "" 2
key DVDpra.Dat "Cabaret" 3
count DVDpra 3
start
click mnuByDVD
see txtTitle "Brazil"
see state KeyFilePos 2
see state CurrentRecNo 2
click cmdNext
see txtTitle "Cabaret"
see state KeyFilePos 3
