# A view whose last key is blank ends at once with the click that lands on it.
each VIEW  FORMAT KEYS     MENU       BOXTITLE                   TEXT
row  title D      Titlepra mnuByTitle "ALPHA TITLE SEARCH"       "End of file!"
row  dvd   D      DVDpra   mnuByDVD   "ALPHA DVD TITLE SEARCH"   "End of file!"
row  laser L      Laserpra mnuByLaser "ALPHA LASER TITLE SEARCH" "End of file!"
row  vhs   V      VHSpra   mnuByVHS   "ALPHA VHS TITLE SEARCH"   "          End of file!"

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
key {KEYS}.Dat "Alien" 1
key {KEYS}.Dat "" 2
count {KEYS} 2
start
click {MENU}
see txtTitle "Alien"
click cmdNext
beep
box warning "{BOXTITLE}" "{TEXT}" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
