# In Edit a click on the colour opens its list and changes the state of the screen.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
see focus List6
see List6.Visible yes
see List6.Items "Color" "B & W"
see txtColor1 "Color"
see txtColor1.Alignment centre
see state ClearOnShow 2
see lblSorting "Save Work When Finished!"
see lblSorting.Visible yes
see frmPage1.HelpContext 18
