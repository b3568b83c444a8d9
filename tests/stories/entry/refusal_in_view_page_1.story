# In view each field of page 1 refuses entry; Save gets the focus.
each FIELD_NAME BOX          BOXTITLE             ALIGNMENT
row  aspect     txtLetter    Aspect               centre
row  cassette   txtCassNo    "Casette No."        left
row  colour     txtColor1    Color/B&W            centre
row  director   txtDirector  Director             centre
row  format     txtFormat    Format               centre
row  genre      txtGenre     Genre                centre
row  genre_name txtGenreList "Genre List"         centre
row  label      txtLabel     Label                centre
row  number     txtNumReel   "No. Disc Tape Etc." centre
row  star_1     txtStar1(0)  "Star 1"             centre
row  star_2     txtStar2(1)  "Star 2"             centre
row  star_3     txtStar3(1)  "Star 3"             centre
row  star_4     txtStar4(1)  "Star 4"             centre
row  star_5     txtStar5(1)  "Star 5"             centre
row  star_6     txtStar6(1)  "Star 6"             centre
row  time       txtTime      Time                 centre
row  year       txtYear      Year                 centre

film 1 Title="Alien"
start
click {BOX}
box warning "{BOXTITLE}" "Hit edit to change." OK
see focus cmdSave
see {BOX}.Alignment {ALIGNMENT}
