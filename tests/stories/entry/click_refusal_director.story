# A click in view on the director that has the focus already is refused, and the focus stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
click mnuSave
see focus txtDirector
click txtDirector
box warning "Director" "Hit edit to change." OK
see focus txtDirector
