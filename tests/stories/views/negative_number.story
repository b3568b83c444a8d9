# A view stops the program at a key whose number is below 0.
each VIEW  FORMAT FILE     MENU
row  title D      Titlepra mnuByTitle
row  dvd   D      DVDpra   mnuByDVD
row  laser L      Laserpra mnuByLaser
row  vhs   V      VHSpra   mnuByVHS

film 1 Title="Alien" Format="{FORMAT}"
file {FILE}.Dat "Alien                                   -1     \r\n"
count {FILE} 1
start
click {MENU}
stop "Bad record number"
