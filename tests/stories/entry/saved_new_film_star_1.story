# A new film that has saved itself and waits for Save: the first star refuses.
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
click optNotesoff
click txtStar1(0)
box warning "Star 1" "Hit edit to change." OK
see focus cmdSave
see txtStar1(0).Alignment centre
