# A view of a file of 24 bytes: that is not a key; the current record number is shown.
each VIEW  FORMAT FILE     MENU       CAPTION
row  title D      Titlepra mnuByTitle "Title Sorted All Formats"
row  dvd   D      DVDpra   mnuByDVD   "  DVD  Sorted"
row  laser L      Laserpra mnuByLaser "Laser Sorted"
row  vhs   V      VHSpra   mnuByVHS   "  VHS  Sorted"

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
file {FILE}.Dat "Cabaret, a musical film."
count {FILE} 1
start
see length {FILE}.Dat 24
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click {MENU}
see state KeyRecord ""
see state KeyFilePos 1
see state ScanRecNo 2
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2      {CAPTION}"
