# A new film that has saved itself and waits for Save: the writers takes the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "YES\r\n"
start
click cmdNew
click optnoteson
click txtRatings
key Tab
beep
beep
beep
beep
see state EditMode 0
see state NewMode 1
click txtWritten
see focus txtWritten
see txtWritten.Alignment left
