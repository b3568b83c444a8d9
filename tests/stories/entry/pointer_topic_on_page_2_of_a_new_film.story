# On page 2 of a new film the pointer over the window sets the topic of page 1.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
key Enter
see lblPage "PAGE 2"
move frmPage1
see frmPage1.HelpContext 150
