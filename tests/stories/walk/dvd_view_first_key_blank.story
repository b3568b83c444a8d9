# DVD view with a blank first key: it opens on the second; Back goes to the first and is sent on again, and the top is never told.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
film 3 Title="Cabaret" Format="D"
key DVDpra.Dat "" 1
key DVDpra.Dat "Brazil" 2
key DVDpra.Dat "Cabaret" 3
count DVDpra 3
start
click mnuByDVD
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
