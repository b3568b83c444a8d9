# A full page of a list: twenty films with year, genre and format; the two list buttons replace Next and Back.
each LIST   FORMAT MENU         SEEN  HEADING                                   CAPTION                    KIND
row  titles D      mnuAllTitles DVD   "Viewing All Titles Alphabetically"       "Title Sorted All Formats" Title
row  dvd    D      mnualldvd    DVD   "Viewing All DVD Titles Alphabetically"   "  DVD  Sorted"            DVD
row  laser  L      mnualllas    Laser "Viewing All Laser Titles Alphabetically" "Laser Sorted"             Laser
row  vhs    V      mnuAllVHS    VHS   "Viewing All VHS Titles Alphabetically"   "  VHS  Sorted"            VHS

each LIST   HITCOUNT RECORDFOUND
row  titles 0        0
row  dvd    20       1
row  laser  20       1
row  vhs    20       1

films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
start
click {MENU}
see Text1(0) "Film 01"
see Text2(0) "1901              Drama"
see Text3(0) "{SEEN}"
see Text1(9) "Film 10"
see Text2(9) "1910              Drama"
see Text3(9) "{SEEN}"
see Text1(19) "Film 20"
see Text2(19) "1920              Drama"
see Text3(19) "{SEEN}"
see Text1(0).Visible yes
see Text2(19).Visible yes
see Text3(19).Visible yes
see cmdNext20.Visible yes
see cmdPrev20.Visible yes
see cmdNext.Visible no
see cmdPrevious.Visible no
see cmdPrevious.Enabled yes
see optNotesoff.Visible no
see optnoteson.Visible no
see lblHead "{HEADING}"
see frmPage1 "Reelora Prima Record  20/ 45      {CAPTION}"
see txtTitle "Film 20"
see txtTitle.Visible yes
see state ViewKind "{KIND}"
see state ViewState 1
see state SearchState 1
see state ListState 2
see state ListShown 1
see state ListShownAlso 1
see state PageMode 0
see state KeyFilePos 20
see state RowCursor 20
see state BackCount 0
see state HitCount {HITCOUNT}
see state MatchPos 0
see state RecordFound {RECORDFOUND}
see state CurrentRecNo 20
see state GenreFilter ""
see focus cmdSave
