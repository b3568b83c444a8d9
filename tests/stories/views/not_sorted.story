# A view with a count of 0 refuses, though there are keys, and resets.
each VIEW  FORMAT KEYS     MENU       BOXTITLE                      TEXT
row  title D      Titlepra mnuByTitle "Reelora Prima Print Program" viewed!
row  dvd   D      DVDpra   mnuByDVD   "Reelora Prima"               viewed!
row  laser L      Laserpra mnuByLaser "Reelora Prima"               "be viewed!"
row  vhs   V      VHSpra   mnuByVHS   "Reelora Prima"               "be viewed!"

film 1 Title="Zulu" Format="{FORMAT}"
film 2 Title="Alien" Format="{FORMAT}"
key {KEYS}.Dat "Alien" 2
key {KEYS}.Dat "Zulu" 1
count {KEYS} 0
start
click cmdNext
click {MENU}
box warning "{BOXTITLE}" "Records have not been sorted.  Records must be sorted before records can {TEXT}" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see txtTitle "Zulu"
see frmPage1 "Reelora Prima Record  1/ 2      Title Non Sorted"
