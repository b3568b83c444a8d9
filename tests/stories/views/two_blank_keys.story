# A view with two leading blank keys skips one; the second is taken, and its number leads to its film.
each VIEW  FORMAT KEYS     MENU
row  title D      Titlepra mnuByTitle
row  dvd   D      DVDpra   mnuByDVD
row  laser L      Laserpra mnuByLaser
row  vhs   V      VHSpra   mnuByVHS

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
film 3 Title="Cabaret" Format="{FORMAT}"
key {KEYS}.Dat "" 1
key {KEYS}.Dat "" 2
key {KEYS}.Dat "Cabaret" 3
count {KEYS} 3
start
click {MENU}
see txtTitle "Brazil"
see state KeyFilePos 2
see state CurrentRecNo 2
click cmdNext
see txtTitle "Cabaret"
see state KeyFilePos 3
