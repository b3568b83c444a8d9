# A click in view on the third star that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar3(1)
click mnuSave
see focus txtStar3(1)
click txtStar3(1)
box warning "Star 3" "Hit edit to change." OK
see focus txtStar3(1)
