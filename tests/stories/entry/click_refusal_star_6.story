# A click in view on the sixth star that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar6(1)
click mnuSave
see focus txtStar6(1)
click txtStar6(1)
box warning "Star 6" "Hit edit to change." OK
see focus txtStar6(1)
