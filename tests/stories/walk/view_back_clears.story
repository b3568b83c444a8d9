# Back in a view empties director, colour and format (the disc mode returns by its rule), seen at a key without a
# number.
each VIEW  KEYS     MENU
row  title Titlepra mnuByTitle
row  dvd   DVDpra   mnuByDVD
row  laser Laserpra mnuByLaser
row  vhs   VHSpra   mnuByVHS

film 1 Title="Alien" Director="Ridley Scott" Format="X" CLV1="CAV" Color1="Color"
key {KEYS}.Dat "Aaa" 0
key {KEYS}.Dat "Alien" 1
count {KEYS} 2
start
click {MENU}
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
