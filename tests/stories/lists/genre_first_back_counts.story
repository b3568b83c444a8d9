# Genre list: the first Back of a list counts past the page on the screen and writes from the twentieth film on.
films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
click cmdNext20
click cmdPrev20
see Text1(0) "Film 01"
see Text1(1) "Film 02"
see Text1(18) "Film 19"
see Text1(19) "Film 20"
see Text2(0) "1901              Drama"
see Text3(0) "DVD"
see state BackCount 40
see state KeyFilePos 1
see state RowCursor 20
see state ScanRecNo 0
see state CurrentRecNo 40
see txtTitle "Film 01"
see frmPage1 "Reelora Prima Record  40/ 45      Genre Sorted"
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
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
