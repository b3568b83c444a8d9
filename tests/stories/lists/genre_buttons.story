# Genre list up: Edit, Delete and New do nothing, the hot keys of Next and Back page, and Reset takes the list away.
films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
click cmdEdit
see state EditMode 0
click cmdDelete
click cmdNew
see state NewMode 0
key Alt+N
see Text1(0) "Film 21"
see focus cmdNext20
key Alt+B
see Text1(0) "Film 01"
see focus cmdPrev20
key Esc
see Text1(0) "Film 01"
click cmdReset
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
see cmdPrev20.Visible yes
