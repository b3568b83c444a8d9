# In Edit a key closes the list; Save gets the focus.
each LIST BOX       KEY   SHOWN        LABEL      SEEN
row  3    txtFormat Enter Laser        lblSorting "Save Work When Finished!"
row  4    txtLetter z     "Pan & Scan" lblSorting "Save Work When Finished!"
row  6    txtColor1 Enter "B & W"      lblPage    "PAGE 1"

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click {BOX}
key Down
key {KEY}
see {BOX} "{SHOWN}"
see List{LIST}.Visible no
see List{LIST}.Items
see focus cmdSave
see {LABEL} "{SEEN}"
