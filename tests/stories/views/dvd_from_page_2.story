# DVD view opened and walked on page 2: opening leaves the page, Next turns it.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
film 3 Title="Metropolis" Format="D"
film 4 Title="Nosferatu" Format="V"
sorted
start
click optnoteson
click mnuByDVD
see lblPage "PAGE 2"
click cmdNext
see lblPage "PAGE 1"
see state PageFlag 0
see optNotesoff.Value yes
