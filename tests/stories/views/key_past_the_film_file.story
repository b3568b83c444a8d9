# A view at a key that points past the last film reads nothing: the film stays under the new number.
each VIEW  FORMAT KEYS     MENU       CAPTION
row  title D      Titlepra mnuByTitle "Title Sorted All Formats"
row  dvd   D      DVDpra   mnuByDVD   "  DVD  Sorted"
row  laser L      Laserpra mnuByLaser "Laser Sorted"
row  vhs   V      VHSpra   mnuByVHS   "  VHS  Sorted"

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
key {KEYS}.Dat "Brazil" 2
key {KEYS}.Dat "Gone" 9
count {KEYS} 2
start
click {MENU}
see txtTitle "Brazil"
click cmdNext
see txtTitle "Brazil"
see state CurrentRecNo 9
see frmPage1 "Reelora Prima Record  9/ 2      {CAPTION}"
