# Genre list: Next brings the next twenty; the short last page is emptied, the end reported, and the screen resets.
films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
click cmdNext20
see Text1(0) "Film 21"
see Text2(0) "1921              Drama"
see Text3(0) "DVD"
see Text1(19) "Film 40"
see state KeyFilePos 40
see state PageMode 4
see state RowCursor 20
see state HitCount 40
see state ViewKind "Genre"
see lblHead "Viewing All Drama Files Alphabetically"
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
