# After a click on the colour in Edit the format list does not send the focus to Save.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
pick List6 "Color"
see focus cmdSave
see state ClearOnShow 2
click txtFormat
pick List3 "VHS"
see focus txtNumReel
click txtFormat
key Enter
see focus txtNumReel
click txtFormat
key Tab
see focus txtNumReel
