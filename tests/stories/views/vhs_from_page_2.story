# VHS view opened and walked on page 2: opening leaves the page, Next turns it.
film 1 Title="Zulu" Format="V"
film 2 Title="Alien" Format="V"
film 3 Title="Metropolis" Format="V"
film 4 Title="Nosferatu" Format="L"
sorted
start
click optnoteson
click mnuByVHS
see lblPage "PAGE 2"
click cmdNext
see lblPage "PAGE 1"
see state PageFlag 0
see optNotesoff.Value yes
