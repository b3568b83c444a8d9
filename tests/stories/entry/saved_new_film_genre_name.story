# A new film that has saved itself and waits for Save: the genre name refuses.
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
click txtGenreList
box warning "Genre List" "Hit edit to change." OK
see focus txtTime
see txtGenreList.Alignment centre
