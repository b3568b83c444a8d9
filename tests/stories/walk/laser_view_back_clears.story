# Laser view: Back empties director, colour and format (the disc mode comes back by its rule), seen at a key without a number.
film 1 Title="Alien" Director="Ridley Scott" Format="X" CLV1="CAV" Color1="Color"
key Laserpra.Dat "Aaa" 0
key Laserpra.Dat "Alien" 1
count Laserpra 2
start
click mnuByLaser
see focus txtTitle
see state KeyFilePos 1
click cmdNext
see txtDirector "Ridley Scott"
see state KeyFilePos 2
click cmdPrevious
see state KeyFilePos 1
see txtTitle "Alien"
see txtDirector ""
see txtColor1 ""
see txtCLV1 "CAV"
see txtFormat ""
see focus txtTitle
