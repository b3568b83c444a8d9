# In Edit Tab goes through the fields of page 2 in order; the rating passes the focus to its list, which passes it on
# to the packaging.
film 1 Title="Alien" Format="V"
start
click cmdEdit
click optnoteson
click txtProducer
key Tab
see focus txtCinematographer
key Tab
see focus txtWritten
key Tab
see focus txtMusic
key Tab
see focus txtChoreography
key Tab
see focus txtSetDirection
key Tab
see focus txtCostume
key Tab
see focus txtSound
key Tab
see focus List2
key Tab
see focus txtPackage
key Tab
see focus txtAwards
key Tab
see focus txtPurchase
key Tab
see focus txtCost
key Tab
see focus txtRatings
key Shift+Tab
beep
beep
beep
beep
see focus txtCost
key Shift+Tab
see focus txtPurchase
key Shift+Tab
see focus txtAwards
key Shift+Tab
see focus txtPackage
