# Genre list of seven keys never shows a page: it fills seven rows, reports the end and resets.
films 1 7 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
beep
box none "" "End of file!" OK
see Text1(6) "Film 07"
see Text1(7) ""
see Text2(7) ""
see Text3(7) ""
see state RowCursor 7
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
