# Reset ends in Save, whose help topic stays.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdReset
see frmPage1.HelpContext 220
