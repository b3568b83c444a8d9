# In view each field of page 2 refuses entry; Save gets the focus.
each FIELD_NAME      BOX                BOXTITLE
row  awards          txtAwards          "Awards / Notes"
row  choreography    txtChoreography    Choreography
row  cinematographer txtCinematographer Cinematographer
row  costume         txtCostume         Costumer
row  mpaa_rating     txtRating          "MPAA Rating"
row  music           txtMusic           "Music Direction"
row  packaging       txtPackage         Packaging
row  price           txtCost            Cost
row  producer        txtProducer        Producer
row  purchase_date   txtPurchase        "Purchase Date"
row  set_direction   txtSetDirection    "Set Direction"
row  sound           txtSound           Sound
row  writers         txtWritten         Writers

film 1 Title="Alien"
start
click optnoteson
click {BOX}
box warning "{BOXTITLE}" "Hit edit to change." OK
see focus cmdSave
see {BOX}.Alignment centre
