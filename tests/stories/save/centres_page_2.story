# A save centres each field of page 2 again.
each FIELD_NAME      BUTTON  BOX
row  awards          cmdEdit txtAwards
row  choreography    cmdEdit txtChoreography
row  cinematographer cmdEdit txtCinematographer
row  costume         cmdEdit txtCostume
row  music           cmdEdit txtMusic
row  own_rating      cmdEdit txtRatings
row  packaging       cmdNew  txtPackage
row  price           cmdEdit txtCost
row  producer        cmdEdit txtProducer
row  purchase_date   cmdEdit txtPurchase
row  set_direction   cmdEdit txtSetDirection
row  sound           cmdEdit txtSound
row  writers         cmdEdit txtWritten

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click {BUTTON}
click optnoteson
click {BOX}
see {BOX}.Alignment left
click mnuSave
see {BOX}.Alignment centre
