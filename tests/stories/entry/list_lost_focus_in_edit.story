# In Edit, leaving the list gives the focus to Save, wherever the user was going.
each LIST BOX       FOCUS       LABEL      SEEN
row  3    txtFormat cmdSave     lblSorting "Save Work When Finished!"
row  4    txtLetter cmdSave     lblSorting "Save Work When Finished!"
row  6    txtColor1 txtDirector lblPage    "PAGE 1"

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click {BOX}
click txtDirector
see focus {FOCUS}
see List{LIST}.Visible no
see List{LIST}.Items
see {LABEL} "{SEEN}"
