# A list of exactly twenty keys is one full page; Next empties all rows, reports the end and resets.
each LIST   FORMAT MENU
row  titles D      mnuAllTitles
row  dvd    D      mnualldvd
row  laser  L      mnualllas
row  vhs    V      mnuAllVHS

films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
start
click {MENU}
see Text1(19) "Film 20"
click cmdNext20
beep
box none "" "End of file!" OK
see Text1(0) ""
see Text2(0) ""
see Text3(19) ""
see state RowCursor 0
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
