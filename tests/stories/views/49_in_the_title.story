# A view at a title that begins with 49 leaves EditMode at 1: the fields are open and Reset asks.
each VIEW  FORMAT MENU
row  title D      mnuByTitle
row  dvd   D      mnuByDVD
row  laser L      mnuByLaser
row  vhs   V      mnuByVHS

film 1 Title="49th Parallel" Director="Michael Powell" Format="{FORMAT}"
sorted
start
click {MENU}
see state EditMode 1
click txtDirector
see focus txtDirector
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
