# A view that has reported its top opens again at its first key.
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
click {MENU}
see txtTitle "Alien"
see state KeyFilePos 1
