# A view of a key file of 47 bytes: the end is noticed after the film is shown, reported in the view's box, and
# resets.
each VIEW  FORMAT FILE     MENU       BOXTITLE
row  dvd   D      DVDpra   mnuByDVD   "ALPHA DVD TITLE SEARCH"
row  laser L      Laserpra mnuByLaser "ALPHA LASER TITLE SEARCH"

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
file {FILE}.Dat "Alien                                   0000001"
count {FILE} 1
start
click {MENU}
see txtTitle "Alien"
see state KeyFilePos 1
click cmdNext
beep
box warning "{BOXTITLE}" "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
