# A list stops the program at a key whose number is below 1.
each LIST   FILE     MENU
row  titles Titlepra mnuAllTitles
row  dvd    DVDpra   mnualldvd
row  laser  Laserpra mnualllas
row  vhs    VHSpra   mnuAllVHS

film 1 Title="Film 01" Genre="DR"
file {FILE}.Dat "Film 01                                 -1     \r\n"
count {FILE} 1
start
click {MENU}
stop "Bad record number"
