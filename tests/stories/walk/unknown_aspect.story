# Next and Back by number onto a film whose aspect letter is unknown show no aspect.
film 1 Title="Alien" Letter="Z"
film 2 Title="Brazil" Letter="W"
film 3 Title="Cinema Paradiso" Letter="Z"
start
click cmdNext
see txtLetter "Wide Screen"
click cmdNext
see txtLetter ""
see state NavFlag2 0
click cmdPrevious
see txtLetter "Wide Screen"
click cmdPrevious
see txtTitle "Alien"
see txtLetter ""
see state NavFlag2 0
