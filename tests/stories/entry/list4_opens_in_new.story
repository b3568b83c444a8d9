# In a new film the aspect opens its list, and Wide Screen is the default.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "DVD"
click txtLetter
see focus List4
see List4.Visible yes
see List4.Items "Wide Screen" "Pan & Scan" "TV 1.33:1"
see List4.ListIndex 0
see txtLetter "Wide Screen"
see frmPage1.HelpContext 500
