# A click in view on the focused field is refused; the focus stays.
each FIELD_NAME BOX         BOXTITLE
row  director   txtDirector Director
row  star_1     txtStar1(0) "Star 1"
row  star_2     txtStar2(1) "Star 2"
row  star_3     txtStar3(1) "Star 3"
row  star_4     txtStar4(1) "Star 4"
row  star_5     txtStar5(1) "Star 5"
row  star_6     txtStar6(1) "Star 6"

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click {BOX}
click mnuSave
see focus {BOX}
click {BOX}
box warning "{BOXTITLE}" "Hit edit to change." OK
see focus {BOX}
