# "Color" chosen by the mouse in Edit is stored, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
pick List6 "Color"
see txtColor1 "Color"
see List6.Visible no
see List6.Items
see focus cmdSave
click cmdSave
see film 1 Color1 "Color"
see state ClearOnShow 0
