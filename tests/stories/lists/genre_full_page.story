# Genre list: twenty films with year, genre and format; the two list buttons take the places of Next and Back.
films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
see Text1(0) "Film 01"
see Text2(0) "1901              Drama"
see Text3(0) "DVD"
see Text1(9) "Film 10"
see Text2(9) "1910              Drama"
see Text3(9) "DVD"
see Text1(19) "Film 20"
see Text2(19) "1920              Drama"
see Text3(19) "DVD"
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
see lblHead "Viewing All Drama Files Alphabetically"
see frmPage1 "Reelora Prima Record  20/ 45      Genre Sorted"
see txtTitle "Film 20"
see txtTitle.Visible yes
see state ViewKind "Genre"
see state ViewState 1
see state SearchState 1
see state ListState 2
see state ListShown 1
see state ListShownAlso 1
see state PageMode 0
see state KeyFilePos 20
see state RowCursor 20
see state BackCount 0
see state HitCount 20
see state MatchPos 0
see state RecordFound 1
see state CurrentRecNo 20
see state GenreFilter "DR"
see focus cmdSave
