# A view with a blank first key opens on the second; Back goes to the first and on again, and never reports the top.
each VIEW  FORMAT KEYS     MENU
row  title D      Titlepra mnuByTitle
row  dvd   D      DVDpra   mnuByDVD
row  laser L      Laserpra mnuByLaser
row  vhs   V      VHSpra   mnuByVHS

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
film 3 Title="Cabaret" Format="{FORMAT}"
key {KEYS}.Dat "" 1
key {KEYS}.Dat "Brazil" 2
key {KEYS}.Dat "Cabaret" 3
count {KEYS} 3
start
click {MENU}
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
