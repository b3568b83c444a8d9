# With a setting that is neither YES nor NO the last field of a new film saves and sorts.
file AutoSave "MAYBE\r\n"
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
see film 3 Title "Casablanca"
see state NewMode 1
