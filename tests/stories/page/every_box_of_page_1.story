# Each field of page 1 and its tag go with page 1 and come back with it.
each BOX          TAG
row  txtTitle     lblTitle
row  txtDirector  lblDirector
row  txtStar1(0)  lblStar1
row  txtStar2(1)  lblStar2
row  txtStar3(1)  lblStar3
row  txtStar4(1)  lblStar4
row  txtStar5(1)  lblStar5
row  txtStar6(1)  lblStar6
row  txtLabel     lblLabel
row  txtFormat    lblFormat
row  txtNumReel   lblNumReel
row  txtGenre     lblGenre
row  txtGenreList lblGenreList1
row  txtTime      lblTime
row  txtYear      lblYear
row  txtCassNo    lblCassNo
row  txtLetter    lblLetter
row  txtCLV1      lblCLV
row  txtColor1    lblColor1

film 1 Title="Solaris" Format="V"
start
see {BOX}.Visible yes
see {TAG}.Visible yes
click optnoteson
see {BOX}.Visible no
see {TAG}.Visible no
click optNotesoff
see {BOX}.Visible yes
see {TAG}.Visible yes
