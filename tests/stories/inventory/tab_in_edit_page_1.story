# In Edit Tab goes through the plain fields of page 1 in order, forward and back.
film 1 Title="Alien" Format="V"
start
click cmdEdit
click txtTitle
key Tab
see focus txtDirector
key Tab
see focus txtStar1(0)
key Tab
see focus txtStar2(1)
key Tab
see focus txtStar3(1)
key Tab
see focus txtStar4(1)
key Tab
see focus txtStar5(1)
key Tab
see focus txtStar6(1)
key Tab
see focus txtLabel
key Shift+Tab
see focus txtStar6(1)
key Shift+Tab
see focus txtStar5(1)
key Shift+Tab
see focus txtStar4(1)
key Shift+Tab
see focus txtStar3(1)
key Shift+Tab
see focus txtStar2(1)
key Shift+Tab
see focus txtStar1(0)
key Shift+Tab
see focus txtDirector
key Shift+Tab
see focus txtTitle
key Shift+Tab
see focus cmdMatch
