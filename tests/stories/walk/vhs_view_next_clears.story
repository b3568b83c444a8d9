# VHS view: Next empties the aspect and leaves the format, seen at a key without a number, which shows no film.
film 1 Title="Alien" Format="X" Letter="W"
film 2 Title="Brazil" Format="X" Letter="Z"
key VHSpra.Dat "Alien" 1
key VHSpra.Dat "Brazil" 2
key VHSpra.Dat "Cabaret" 0
count VHSpra 3
start
click mnuByVHS
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
