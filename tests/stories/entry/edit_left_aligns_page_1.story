# In Edit each field of page 1 is left-aligned for typing, except the aspect and the cassette number.
each FIELD_NAME BOX          ALIGNMENT2 FOCUS        ALIGNMENT
row  aspect     txtLetter    centre     List4        centre
row  cassette   txtCassNo    left       txtCassNo    left
row  colour     txtColor1    centre     List6        centre
row  director   txtDirector  centre     txtDirector  left
row  format     txtFormat    centre     List3        left
row  genre      txtGenre     centre     List1        centre
row  genre_name txtGenreList centre     txtGenreList centre
row  label      txtLabel     centre     txtLabel     left
row  star_1     txtStar1(0)  centre     txtStar1(0)  left
row  star_2     txtStar2(1)  centre     txtStar2(1)  left
row  star_3     txtStar3(1)  centre     txtStar3(1)  left
row  star_4     txtStar4(1)  centre     txtStar4(1)  left
row  star_5     txtStar5(1)  centre     txtStar5(1)  left
row  star_6     txtStar6(1)  centre     txtStar6(1)  left
row  time       txtTime      centre     txtTime      left
row  title      txtTitle     centre     txtTitle     left
row  year       txtYear      centre     txtYear      left

film 1 Title="Alien"
start
click cmdEdit
see {BOX}.Alignment {ALIGNMENT2}
click {BOX}
see focus {FOCUS}
see {BOX}.Alignment {ALIGNMENT}
