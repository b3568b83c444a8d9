# A click in view on the fifth star that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar5(1)
click mnuSave
see focus txtStar5(1)
click txtStar5(1)
box warning "Star 5" "Hit edit to change." OK
see focus txtStar5(1)
