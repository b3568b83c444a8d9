# A new film that has saved itself and waits for Save: these fields of page 2 still take the focus.
each FIELD_NAME      BOX
row  awards          txtAwards
row  choreography    txtChoreography
row  cinematographer txtCinematographer
row  costume         txtCostume
row  music           txtMusic
row  own_rating      txtRatings
row  price           txtCost
row  producer        txtProducer
row  purchase_date   txtPurchase
row  set_direction   txtSetDirection
row  sound           txtSound
row  writers         txtWritten

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "YES\r\n"
start
click cmdNew
click optnoteson
click txtRatings
key Tab
beep
beep
beep
beep
see state EditMode 0
see state NewMode 1
click {BOX}
see focus {BOX}
see {BOX}.Alignment left
