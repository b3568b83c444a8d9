# In a new film the colour opens its list, Color is the default, and the message line goes.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
see focus List6
see List6.Visible yes
see List6.Items "Color" "B & W"
see List6.ListIndex 0
see txtColor1 "Color"
see txtColor1.Alignment left
see lblSorting.Visible no
see state ClearOnShow 1
see frmPage1.HelpContext 18
