# A view whose only key is blank ends while it opens.
each VIEW  FORMAT KEYS     MENU       BOXTITLE                   TEXT
row  title D      Titlepra mnuByTitle "ALPHA TITLE SEARCH"       "End of file!"
row  dvd   D      DVDpra   mnuByDVD   "ALPHA DVD TITLE SEARCH"   "End of file!"
row  laser L      Laserpra mnuByLaser "ALPHA LASER TITLE SEARCH" "End of file!"
row  vhs   V      VHSpra   mnuByVHS   "ALPHA VHS TITLE SEARCH"   "          End of file!"

film 1 Title="Alien" Format="{FORMAT}"
key {KEYS}.Dat "" 1
count {KEYS} 1
start
click {MENU}
beep
box warning "{BOXTITLE}" "{TEXT}" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
