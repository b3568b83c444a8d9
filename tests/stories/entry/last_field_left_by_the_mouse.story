# A click elsewhere ends the entry as Tab does.
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Casablanca"
click optnoteson
click txtRatings
click txtProducer
beep
beep
beep
beep
see film 3 Title "Casablanca"
see lblPage "PAGE 1"
see focus cmdSave
