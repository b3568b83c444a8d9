# A view at record 49: the number in the key leaves EditMode at 46; the field does not refuse, Reset asks nothing.
each VIEW  FORMAT MENU
row  title D      mnuByTitle
row  dvd   D      mnuByDVD
row  laser L      mnuByLaser
row  vhs   V      mnuByVHS

film 1 Title="Alien" Format="{FORMAT}"
film 49 Title="Brazil" Director="Terry Gilliam" Format="{FORMAT}"
sorted
start
click {MENU}
see state EditMode 0
click cmdNext
see txtTitle "Brazil"
see state EditMode 46
click txtDirector
see focus txtDirector
click cmdReset
see state EditMode 0
