# In Edit a key closes the colour list, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
key Down
key Enter
see txtColor1 "B & W"
see List6.Visible no
see List6.Items
see focus cmdSave
see lblPage "PAGE 1"
