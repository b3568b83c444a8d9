# Title view: Next empties format and aspect, seen at a key without a number, which shows no film.
film 1 Title="Alien" Format="X" Letter="W"
film 2 Title="Brazil" Format="X" Letter="Z"
key Titlepra.Dat "Alien" 1
key Titlepra.Dat "Brazil" 2
key Titlepra.Dat "Cabaret" 0
count Titlepra 3
start
click mnuByTitle
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat "X"
see txtLetter "Wide Screen"
click cmdNext
see txtTitle "Brazil"
see txtFormat ""
see txtLetter ""
see focus txtTitle
