# "B & W" chosen by the mouse in Edit is stored, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
pick List6 "B & W"
see txtColor1 "B & W"
see List6.Visible no
see List6.Items
see focus cmdSave
click cmdSave
see film 1 Color1 "B & W"
see state ClearOnShow 0
