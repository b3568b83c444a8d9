# A view chosen again in its middle shows the same key; nothing starts again.
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
click {MENU}
click cmdNext
see txtTitle "Metropolis"
click {MENU}
see txtTitle "Metropolis"
see state KeyFilePos 2
