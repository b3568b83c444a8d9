# A new film that has saved itself and waits for Save: these fields of page 1 still take the focus.
each FIELD_NAME BOX       FOCUS     ALIGNMENT
row  aspect     txtLetter List4     centre
row  cassette   txtCassNo txtCassNo left
row  colour     txtColor1 List6     left
row  genre      txtGenre  txtGenre  centre
row  time       txtTime   txtTime   left
row  year       txtYear   txtYear   left

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
click {BOX}
see focus {FOCUS}
see {BOX}.Alignment {ALIGNMENT}
