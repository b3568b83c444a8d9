# Next in a view empties format and aspect, seen at a key without a number, which shows no film.
each VIEW  KEYS     MENU       SHOWN
row  title Titlepra mnuByTitle ""
row  dvd   DVDpra   mnuByDVD   X
row  laser Laserpra mnuByLaser X
row  vhs   VHSpra   mnuByVHS   X

film 1 Title="Alien" Format="X" Letter="W"
film 2 Title="Brazil" Format="X" Letter="Z"
key {KEYS}.Dat "Alien" 1
key {KEYS}.Dat "Brazil" 2
key {KEYS}.Dat "Cabaret" 0
count {KEYS} 3
start
click {MENU}
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat "X"
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat "{SHOWN}"
see txtLetter ""
see focus txtTitle
