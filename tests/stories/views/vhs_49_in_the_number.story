# VHS view at record 49: EditMode is left at 46, where the number stands in the key; the field does not refuse, Reset asks nothing.
film 1 Title="Alien" Format="V"
film 49 Title="Brazil" Director="Terry Gilliam" Format="V"
sorted
start
click mnuByVHS
see state EditMode 0
click cmdNext
see txtTitle "Brazil"
see state EditMode 46
click txtDirector
see focus txtDirector
click cmdReset
see state EditMode 0
