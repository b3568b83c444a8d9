# With Auto Save on and Auto Sort off the last field of a new film saves and sorts all the same, and the fields stay
# until Save.
file AutoSave "YES\r\n"
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Casablanca"
click optnoteson
click txtRatings
key Tab
beep
beep
beep
beep
see focus optnoteson
see film 3 Title "Casablanca"
see key Titlepra.Dat 3 "Casablanca" 3
see file Last " 3 \r\n"
see state EditMode 0
see state NewMode 1
see lblPage "PAGE 2"
see cmdPrevious.Enabled yes
see lblSorting ""
click txtProducer
type "Nobody"
click cmdSave
see state NewMode 0
see lblPage "PAGE 1"
see lblSave.Visible no
see film 3 Producer ""
