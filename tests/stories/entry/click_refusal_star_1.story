# A click in view on the first star that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar1(0)
click mnuSave
see focus txtStar1(0)
click txtStar1(0)
box warning "Star 1" "Hit edit to change." OK
see focus txtStar1(0)
