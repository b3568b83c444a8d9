# Next brings the next twenty; the rest of a short last page is emptied, the end reported, and the screen resets.
each LIST   FORMAT MENU         SEEN  HITCOUNT KIND  HEADING
row  titles D      mnuAllTitles DVD   20       Title "Viewing All Titles Alphabetically"
row  dvd    D      mnualldvd    DVD   40       DVD   "Viewing All DVD Titles Alphabetically"
row  laser  L      mnualllas    Laser 40       Laser "Viewing All Laser Titles Alphabetically"
row  vhs    V      mnuAllVHS    VHS   40       VHS   "Viewing All VHS Titles Alphabetically"

films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
start
click {MENU}
click cmdNext20
see Text1(0) "Film 21"
see Text2(0) "1921              Drama"
see Text3(0) "{SEEN}"
see Text1(19) "Film 40"
see state KeyFilePos 40
see state PageMode 4
see state RowCursor 20
see state HitCount {HITCOUNT}
see state ViewKind "{KIND}"
see lblHead "{HEADING}"
click cmdNext20
beep
box none "" "End of file!" OK
see Text1(4) "Film 45"
see Text1(5) ""
see Text2(5) ""
see Text3(5) ""
see Text1(19) ""
see state RowCursor 5
see cmdPrev20.Visible yes
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state KeyFilePos 0
see state ViewKind ""
see state CurrentRecNo 1
see Text1(0).Visible no
see Text2(19).Visible no
see Text3(10).Visible no
see cmdNext20.Visible no
see cmdNext.Visible yes
see cmdPrevious.Visible yes
see cmdNew.Visible yes
see optNotesoff.Visible yes
see optnoteson.Visible yes
see lblHead "To write a new record click \"New\" button or ALT \"W\""
