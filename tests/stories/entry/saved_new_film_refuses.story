# A new film that has saved itself and waits for Save: these fields refuse.
each FIELD_NAME BOX          ICON    BOXTITLE             TEXT                  FOCUS     ALIGNMENT
row  director   txtDirector  warning Director             "Hit edit to change." cmdSave   centre
row  format     txtFormat    none    ""                   "Hit Edit To Change"  txtFormat left
row  genre_name txtGenreList warning "Genre List"         "Hit edit to change." txtTime   centre
row  label      txtLabel     warning Label                "Hit edit to change." cmdSave   left
row  number     txtNumReel   warning "No. Disc Tape Etc." "Hit edit to change." cmdSave   left
row  star_1     txtStar1(0)  warning "Star 1"             "Hit edit to change." cmdSave   centre
row  star_2     txtStar2(1)  warning "Star 2"             "Hit edit to change." cmdSave   centre
row  star_3     txtStar3(1)  warning "Star 3"             "Hit edit to change." cmdSave   centre
row  star_4     txtStar4(1)  warning "Star 4"             "Hit edit to change." cmdSave   centre
row  star_5     txtStar5(1)  warning "Star 5"             "Hit edit to change." cmdSave   centre
row  star_6     txtStar6(1)  warning "Star 6"             "Hit edit to change." cmdSave   centre
row  title      txtTitle     warning Title                "Hit edit to change." cmdSave   left

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
box {ICON} "{BOXTITLE}" "{TEXT}" OK
see focus {FOCUS}
see {BOX}.Alignment {ALIGNMENT}
