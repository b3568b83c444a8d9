# A view at a key whose number is 0 reads no film and says nothing; the heading is the view's own, the focus is on
# the title.
each VIEW  FORMAT KIND  HEADING                                        BOXTITLE
row  title D      Title "    Viewing All Titles Alphabetically"        "ALPHA TITLE SEARCH"
row  dvd   D      DVD   "Viewing All DVD Titles Alphabetically"        "ALPHA DVD TITLE SEARCH"
row  laser L      Laser "Viewing All Laser Disc Titles Alphabetically" "ALPHA LASER TITLE SEARCH"
row  vhs   V      VHS   "  Viewing All VHS Titles Alphabetically"      "ALPHA VHS TITLE SEARCH"

each VIEW  TEXT
row  title "End of file!"
row  dvd   "End of file!"
row  laser "End of file!"
row  vhs   "          End of file!"

film 1 Title="Alien" Format="{FORMAT}"
key {KIND}pra.Dat "Nothing" 0
count {KIND}pra 1
start
click mnuBy{KIND}
see focus txtTitle
see lblHead "{HEADING}"
see txtTitle "Alien"
see state CurrentRecNo 1
see state ScanRecNo 0
see state ViewKind "{KIND}"
see state KeyFilePos 1
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
click cmdNext
beep
box warning "{BOXTITLE}" "{TEXT}" OK
