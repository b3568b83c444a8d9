# A view of a file of 25 bytes: that counts as a key, whose number reads as 0.
each VIEW  FORMAT FILE     MENU
row  title D      Titlepra mnuByTitle
row  dvd   D      DVDpra   mnuByDVD
row  laser L      Laserpra mnuByLaser
row  vhs   V      VHSpra   mnuByVHS

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
file {FILE}.Dat "Cabaret, a musical film.."
count {FILE} 1
start
see length {FILE}.Dat 25
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click {MENU}
see state KeyRecord "Cabaret, a musical film..                        "
see state KeyFilePos 1
see state ScanRecNo 0
see focus txtTitle
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2      Title Non Sorted"
