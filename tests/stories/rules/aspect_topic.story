# A change of the aspect sets its topic, a change of the format its own.
film 1 Title="Alien" Format="L" Letter="W"
film 2 Title="Brazil" Format="L" Letter="P"
start
move cmdNext
see frmPage1.HelpContext 240
click cmdNext
see frmPage1.HelpContext 490
