# Each field of page 2 and its tag come with page 2 and go with it.
each BOX                TAG
row  txtProducer        lblProducer
row  txtCinematographer lblCinematographer
row  txtWritten         lblWritten
row  txtMusic           lblMusic
row  txtChoreography    lblDance
row  txtSetDirection    lblSetDirection
row  txtCostume         lblCostume
row  txtSound           lblSound
row  txtRating          lblMPAA
row  txtAwards          lblAward
row  txtPackage         lblPackage
row  txtPurchase        lblPurchase
row  txtCost            lblCost
row  txtRatings         lblRates

film 1 Title="Solaris" Format="V"
start
see {BOX}.Visible no
see {TAG}.Visible no
click optnoteson
see {BOX}.Visible yes
see {TAG}.Visible yes
click optNotesoff
see {BOX}.Visible no
see {TAG}.Visible no
