# Next after a title that begins with 49 clears EditMode before it reads on, so that the end asks nothing.
each VIEW  FORMAT MENU       BOXTITLE                   TEXT
row  title D      mnuByTitle "ALPHA TITLE SEARCH"       "End of file!"
row  dvd   D      mnuByDVD   "ALPHA DVD TITLE SEARCH"   "End of file!"
row  laser L      mnuByLaser "ALPHA LASER TITLE SEARCH" "End of file!"
row  vhs   V      mnuByVHS   "ALPHA VHS TITLE SEARCH"   "          End of file!"

film 1 Title="49th Parallel" Format="{FORMAT}"
sorted
start
click {MENU}
see state EditMode 1
click cmdNext
beep
box warning "{BOXTITLE}" "{TEXT}" OK
see state EditMode 0
