# Reset clears a twenty-row list away and brings the buttons back.
films 1 22 Title="Film ##" Format="V"
sorted
start
click mnuAllVHS
see Text1(0).Visible yes
see Text2(19).Visible yes
see Text3(19).Visible yes
see optNotesoff.Visible no
see cmdPrevious.Visible no
see cmdNext.Visible no
click cmdReset
see Text1(0).Visible no
see Text1(19).Visible no
see Text2(0).Visible no
see Text2(19).Visible no
see Text3(0).Visible no
see Text3(19).Visible no
see optNotesoff.Visible yes
see optnoteson.Visible yes
see cmdPrevious.Visible yes
see cmdNext.Visible yes
see cmdNew.Visible yes
see cmdNext20.Visible no
see cmdPrev20.Visible yes
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state ViewKind ""
see state KeyFilePos 0
see txtTitle "Film 01"
