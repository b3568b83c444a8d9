# A click in view on the fourth star that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar4(1)
click mnuSave
see focus txtStar4(1)
click txtStar4(1)
box warning "Star 4" "Hit edit to change." OK
see focus txtStar4(1)
