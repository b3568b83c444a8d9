# A view refused in Edit leaves the edit on, so that the reset asks about it.
each VIEW  FORMAT MENU       TEXT
row  dvd   D      mnuByDVD   viewed!
row  laser L      mnuByLaser "be viewed!"
row  vhs   V      mnuByVHS   "be viewed!"

film 1 Title="Zulu" Format="{FORMAT}"
start
click cmdEdit
see state EditMode 1
click {MENU}
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can {TEXT}" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
see state ViewKind ""
