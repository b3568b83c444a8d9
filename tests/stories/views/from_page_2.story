# A view opened and walked on page 2: opening leaves the page, Next turns it.
each VIEW  FORMAT FORMAT2 MENU
row  title D      V       mnuByTitle
row  dvd   D      V       mnuByDVD
row  laser L      V       mnuByLaser
row  vhs   V      L       mnuByVHS

film 1 Title="Zulu" Format="{FORMAT}"
film 2 Title="Alien" Format="{FORMAT}"
film 3 Title="Metropolis" Format="{FORMAT}"
film 4 Title="Nosferatu" Format="{FORMAT2}"
sorted
start
click optnoteson
click {MENU}
see lblPage "PAGE 2"
click cmdNext
see lblPage "PAGE 1"
see state PageFlag 0
see optNotesoff.Value yes
