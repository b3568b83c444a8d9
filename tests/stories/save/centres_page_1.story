# A save centres each field of page 1 again.
each FIELD_NAME BUTTON  BOX
row  director   cmdEdit txtDirector
row  format     cmdEdit txtFormat
row  label      cmdEdit txtLabel
row  number     cmdNew  txtNumReel
row  star_1     cmdEdit txtStar1(0)
row  star_2     cmdEdit txtStar2(1)
row  star_3     cmdEdit txtStar3(1)
row  star_4     cmdEdit txtStar4(1)
row  star_5     cmdEdit txtStar5(1)
row  star_6     cmdEdit txtStar6(1)
row  time       cmdEdit txtTime
row  title      cmdEdit txtTitle
row  year       cmdEdit txtYear

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click {BUTTON}
click {BOX}
see {BOX}.Alignment left
click mnuSave
see {BOX}.Alignment centre
