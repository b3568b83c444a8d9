# A blank aspect letter leaves one blank in the box once the box has been cleared by a step.
film 1 Title="Alien" Letter="W"
film 2 Title="Brazil"
start
click cmdNext
see txtLetter " "
