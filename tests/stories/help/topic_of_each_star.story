# The focus on any of the six stars sets the topic of the stars.
each STAR
row  txtStar1(0)
row  txtStar2(1)
row  txtStar3(1)
row  txtStar4(1)
row  txtStar5(1)
row  txtStar6(1)

film 1 Title="Solaris" Format="V"
start
click cmdEdit
click {STAR}
see frmPage1.HelpContext 3
