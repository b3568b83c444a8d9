# A new film that the last field has saved without ending it is no longer typed: some fields of page 1 refuse, some
# do not, and the lists open as far as the new film goes.
file AutoSave "YES\r\n"
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Zulu"
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
see focus optNotesoff
click txtFormat
box none "" "Hit Edit To Change" OK
see focus txtFormat
see txtFormat.Alignment left
see List3.Visible yes
see List3.Items
type "D"
see txtFormat "DVD"
click txtNumReel
box warning "No. Disc Tape Etc." "Hit edit to change." OK
see focus cmdSave
see txtNumReel.Alignment left
click txtDirector
box warning "Director" "Hit edit to change." OK
see focus cmdSave
see txtDirector.Alignment centre
click txtYear
see txtYear.Alignment left
key Tab
see focus List4
see List4.Items "Wide Screen" "Pan & Scan" "TV 1.33:1"
