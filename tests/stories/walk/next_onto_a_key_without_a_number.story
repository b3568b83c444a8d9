# Next onto a key whose number is 0 empties the aspect; only in the view of all titles does it empty the format too.
each VIEW  KIND  MENU       SHOWN
row  title Title mnuByTitle ""
row  dvd   DVD   mnuByDVD   "X"
row  laser Laser mnuByLaser "X"
row  vhs   VHS   mnuByVHS   "X"

film 1 Title="Alien" Letter="W" Format="X"
film 2 Title="Brazil" Letter="Z" Format="X"
key {KIND}pra.Dat "Alien" 1
key {KIND}pra.Dat "Brazil" 2
key {KIND}pra.Dat "Nobody" 0
count {KIND}pra 3
start
click {MENU}
click cmdNext
see txtTitle "Brazil"
see txtFormat "X"
see txtLetter "Wide Screen"
click cmdNext
see focus txtTitle
see txtTitle "Brazil"
see txtFormat "{SHOWN}"
see txtLetter ""
