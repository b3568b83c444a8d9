# Laser view opened and walked on page 2: opening leaves the page, Next turns it.
film 1 Title="Zulu" Format="L"
film 2 Title="Alien" Format="L"
film 3 Title="Metropolis" Format="L"
film 4 Title="Nosferatu" Format="V"
sorted
start
click optnoteson
click mnuByLaser
see lblPage "PAGE 2"
click cmdNext
see lblPage "PAGE 1"
see state PageFlag 0
see optNotesoff.Value yes
