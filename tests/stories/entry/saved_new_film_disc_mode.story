# A new film that has saved itself and waits for Save: the disc mode takes the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "YES\r\n"
start
click cmdNew
click txtFormat
pick List3 "Laser"
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
click txtCLV1
see focus List5
see txtCLV1.Alignment centre
