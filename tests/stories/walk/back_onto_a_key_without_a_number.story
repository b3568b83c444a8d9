# Back onto a key whose number is 0 empties the aspect and the format, in every view.
each VIEW  KIND  MENU
row  title Title mnuByTitle
row  dvd   DVD   mnuByDVD
row  laser Laser mnuByLaser
row  vhs   VHS   mnuByVHS

film 1 Title="Alien" Letter="W" Format="X"
film 2 Title="Brazil" Letter="Z" Format="X"
key {KIND}pra.Dat "Nobody" 0
key {KIND}pra.Dat "Brazil" 2
count {KIND}pra 2
start
click {MENU}
see focus txtTitle
see txtTitle "Alien"
click cmdNext
see txtTitle "Brazil"
see txtLetter "Wide Screen"
click cmdPrevious
see focus txtTitle
see txtTitle "Brazil"
see txtFormat ""
see txtLetter ""
