# Edit pressed a second time shows the film again as it was opened, and it stays open.
film 1 Title="Alien" Director="Ridley Scott" Format="V"
start
key Alt+E
click txtDirector
type "!"
see txtDirector "Ridley Scott!"
key Alt+E
see txtDirector "Ridley Scott"
see state EditMode 1
click cmdSave
see film 1 Director "Ridley Scott"
