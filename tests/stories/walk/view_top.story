# Back on the first key of a view beeps, says so in the view's own words and resets.
each VIEW  FORMAT FORMAT2 MENU       BOXTITLE                   TEXT
row  title D      V       mnuByTitle "ALPHA TITLE SEARCH"       "Beginning of file encounter!"
row  dvd   D      V       mnuByDVD   "ALPHA DVD TITLE SEARCH"   "Begining of file encountered!"
row  laser L      V       mnuByLaser "ALPHA LASER TITLE SEARCH" "Beginning of file encounter!"
row  vhs   V      L       mnuByVHS   "ALPHA VHS TITLE SEARCH"   "Beginning of file encounter!"

film 1 Title="Zulu" Format="{FORMAT}"
film 2 Title="Alien" Format="{FORMAT}"
film 3 Title="Metropolis" Format="{FORMAT}"
film 4 Title="Nosferatu" Format="{FORMAT2}"
sorted
start
click {MENU}
click cmdPrevious
beep
box warning "{BOXTITLE}" "{TEXT}" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see txtTitle "Zulu"
see frmPage1 "Reelora Prima Record  1/ 4      Title Non Sorted"
click cmdNext
see txtTitle "Alien"
see frmPage1 "Reelora Prima Record  2/ 4      Title Non Sorted"
