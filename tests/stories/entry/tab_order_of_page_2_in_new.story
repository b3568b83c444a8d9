# By tab a new film goes through page 2 in its order, the packaging before the awards.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
see focus txtProducer
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
