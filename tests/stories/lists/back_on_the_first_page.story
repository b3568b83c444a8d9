# Back on the first page of a list counts its way to the top and resets.
each LIST   FORMAT MENU
row  titles D      mnuAllTitles
row  dvd    D      mnualldvd
row  laser  L      mnualllas
row  vhs    V      mnuAllVHS

films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
start
click {MENU}
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see state BackCount 18
see state RecordFound 1
see cmdPrev20.Visible no
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state KeyFilePos 0
see state MatchPos 0
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
