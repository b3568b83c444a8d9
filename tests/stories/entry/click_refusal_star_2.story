# A click in view on the second star that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar2(1)
click mnuSave
see focus txtStar2(1)
click txtStar2(1)
box warning "Star 2" "Hit edit to change." OK
see focus txtStar2(1)
