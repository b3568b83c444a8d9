# In Edit each field of page 2 is left-aligned for typing.
each FIELD_NAME      BOX                FOCUS              ALIGNMENT
row  choreography    txtChoreography    txtChoreography    left
row  cinematographer txtCinematographer txtCinematographer left
row  costume         txtCostume         txtCostume         left
row  mpaa_rating     txtRating          List2              centre
row  music           txtMusic           txtMusic           left
row  own_rating      txtRatings         txtRatings         left
row  packaging       txtPackage         txtPackage         centre
row  price           txtCost            txtCost            left
row  producer        txtProducer        txtProducer        left
row  purchase_date   txtPurchase        txtPurchase        left
row  set_direction   txtSetDirection    txtSetDirection    left
row  sound           txtSound           txtSound           left
row  writers         txtWritten         txtWritten         left

film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see {BOX}.Alignment centre
click {BOX}
see focus {FOCUS}
see {BOX}.Alignment {ALIGNMENT}
