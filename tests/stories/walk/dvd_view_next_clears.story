# DVD view: Next empties the aspect and leaves the format, seen at a key without a number, which shows no film.
film 1 Title="Alien" Format="X" Letter="W"
film 2 Title="Brazil" Format="X" Letter="Z"
key DVDpra.Dat "Alien" 1
key DVDpra.Dat "Brazil" 2
key DVDpra.Dat "Cabaret" 0
count DVDpra 3
start
click mnuByDVD
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat "X"
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat "X"
see txtLetter ""
see focus txtTitle
