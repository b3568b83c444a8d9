# A list with a count of 0 refuses and resets.
each LIST   FORMAT KEYS     MENU            BOXTITLE                      TEXT
row  titles D      Titlepra mnuAllTitles    "Reelora Prima Print Program" viewed!
row  laser  L      Laserpra mnualllas       "Reelora Prima"               "be viewed!"
row  vhs    V      VHSpra   mnuAllVHS       "Reelora Prima"               "be viewed!"
row  genre  D      Titlepra mnuFindAllGenre "Reelora Prima Print Program" viewed!

film 1 Title="Zulu" Format="{FORMAT}"
film 2 Title="Alien" Format="{FORMAT}"
key {KEYS}.Dat "Alien" 2
start
click cmdNext
click {MENU}
box warning "{BOXTITLE}" "Records have not been sorted.  Records must be sorted before records can {TEXT}" OK
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state KeyFilePos 0
see state ViewKind ""
see state CurrentRecNo 1
see Text1(0).Visible no
see Text2(19).Visible no
see Text3(10).Visible no
see cmdNext20.Visible no
see cmdNext.Visible yes
see cmdPrevious.Visible yes
see cmdNew.Visible yes
see optNotesoff.Visible yes
see optnoteson.Visible yes
see cmdPrev20.Visible no
see lblHead "To write a new record click \"New\" button or ALT \"W\""
