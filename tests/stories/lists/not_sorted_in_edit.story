# A list refused in Edit leaves the edit on, so that the reset asks about it.
each LIST   FORMAT MENU            BOXTITLE                      TEXT
row  titles D      mnuAllTitles    "Reelora Prima Print Program" viewed!
row  laser  L      mnualllas       "Reelora Prima"               "be viewed!"
row  vhs    V      mnuAllVHS       "Reelora Prima"               "be viewed!"
row  genre  D      mnuFindAllGenre "Reelora Prima Print Program" viewed!

film 1 Title="Zulu" Format="{FORMAT}"
start
click cmdEdit
click {MENU}
box warning "{BOXTITLE}" "Records have not been sorted.  Records must be sorted before records can {TEXT}" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state ListState 0
