# The fields of page 1 and their tags when the window has come up.
film 1 Title="Alien" Format="V"
start
see txtTitle.Visible yes
see txtTitle.Enabled yes
see txtTitle.Alignment centre
see lblTitle "Title"
see lblTitle.Visible yes
see lblTitle.Enabled yes
see txtDirector.Visible yes
see txtDirector.Enabled yes
see txtDirector.Alignment centre
see lblDirector " Director"
see lblDirector.Visible yes
see lblDirector.Enabled yes
see txtStar1(0).Visible yes
see txtStar1(0).Enabled yes
see txtStar1(0).Alignment centre
see lblStar1 "Star 1"
see lblStar1.Visible yes
see lblStar1.Enabled yes
see txtStar2(1).Visible yes
see txtStar2(1).Enabled yes
see txtStar2(1).Alignment centre
see lblStar2 "Star 2"
see lblStar2.Visible yes
see lblStar2.Enabled yes
see txtStar3(1).Visible yes
see txtStar3(1).Enabled yes
see txtStar3(1).Alignment centre
see lblStar3 "Star 3"
see lblStar3.Visible yes
see lblStar3.Enabled yes
see txtStar4(1).Visible yes
see txtStar4(1).Enabled yes
see txtStar4(1).Alignment centre
see lblStar4 "Star 4"
see lblStar4.Visible yes
see lblStar4.Enabled yes
see txtStar5(1).Visible yes
see txtStar5(1).Enabled yes
see txtStar5(1).Alignment centre
see lblStar5 "Star 5"
see lblStar5.Visible yes
see lblStar5.Enabled yes
see txtStar6(1).Visible yes
see txtStar6(1).Enabled yes
see txtStar6(1).Alignment centre
see lblStar6 "Star 6"
see lblStar6.Visible yes
see lblStar6.Enabled yes
see txtLabel.Visible yes
see txtLabel.Enabled yes
see txtLabel.Alignment centre
see lblLabel "Label"
see lblLabel.Visible yes
see lblLabel.Enabled yes
see txtFormat.Visible yes
see txtFormat.Enabled yes
see txtFormat.Alignment centre
see lblFormat "     Format            V - L- D       "
see lblFormat.Visible yes
see lblFormat.Enabled yes
see txtNumReel.Visible yes
see txtNumReel.Enabled yes
see txtNumReel.Alignment centre
see lblNumReel "   Number     discs / tapes"
see lblNumReel.Visible yes
see lblNumReel.Enabled yes
see txtGenre.Visible yes
see txtGenre.Enabled yes
see txtGenre.Alignment centre
see lblGenre "     Genre        Click box  "
see lblGenre.Visible yes
see lblGenre.Enabled yes
see txtGenreList.Visible yes
see txtGenreList.Enabled yes
see txtGenreList.Alignment centre
see lblGenreList1 "  Genre Listed"
see lblGenreList1.Visible yes
see lblGenreList1.Enabled yes
see txtTime.Visible yes
see txtTime.Enabled yes
see txtTime.Alignment centre
see lblTime " Time (min)"
see lblTime.Visible yes
see lblTime.Enabled yes
see txtYear.Visible yes
see txtYear.Enabled yes
see txtYear.Alignment centre
see lblYear "Year"
see lblYear.Visible yes
see lblYear.Enabled yes
see txtCassNo.Visible yes
see txtCassNo.Enabled yes
see txtCassNo.Alignment left
see lblCassNo "Cassette No."
see lblCassNo.Visible yes
see lblCassNo.Enabled yes
see txtLetter.Visible yes
see txtLetter.Enabled yes
see txtLetter.Alignment centre
see lblLetter "  Aspect"
see lblLetter.Visible yes
see lblLetter.Enabled yes
see txtCLV1.Visible yes
see txtCLV1.Enabled no
see txtCLV1.Alignment centre
see lblCLV "   CAV / CLV  "
see lblCLV.Visible yes
see lblCLV.Enabled yes
see txtColor1.Visible yes
see txtColor1.Enabled yes
see txtColor1.Alignment centre
see lblColor1 " Color B/W"
see lblColor1.Visible yes
see lblColor1.Enabled yes
