# The space bar types a blank into a box, and presses a button that has the focus.
film 1 Title="Alien" Director="Ridley"
start
key Tab
see focus cmdEdit
type " "
see state EditMode 1
click txtDirector
key Space
see txtDirector "Ridley "
