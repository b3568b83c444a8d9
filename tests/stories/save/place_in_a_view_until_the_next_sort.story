# An edited film keeps its slot and its old place in the views until the next sort.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click cmdEdit
click txtTitle
clear
type "Zulu"
click cmdSave
see film 1 Title "Zulu"
see key Titlepra.Dat 1 "Alien" 1
click mnuByTitle
see txtTitle "Zulu"
click mnuSort
beep
beep
beep
beep
see key Titlepra.Dat 1 "Brazil" 2
see key Titlepra.Dat 2 "Zulu" 1
