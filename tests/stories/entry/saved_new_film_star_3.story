# A new film that has saved itself and waits for Save: the third star refuses.
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
click txtStar3(1)
box warning "Star 3" "Hit edit to change." OK
see focus cmdSave
see txtStar3(1).Alignment centre
