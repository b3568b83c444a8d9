# A directors list given no name leaves an empty text to the search that continues: it is in every field.
film 1 Title="Alpha" Director="Zed"
film 2 Title="Beta" Director="Yan"
film 3 Title="Gamma" Director="Oz"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "z"
see state CurrentRecNo 1
click cmdMatch
see state CurrentRecNo 3
see state MatchPos 2
click mnuDirector
input "Reelora Prima Print Program" "Enter Director's Last Name. To Print List: " ""
see state DirectorQuery ""
see state RowCursor 0
see state MatchKind "Director"
click cmdPrevious
see state CurrentRecNo 3
click mnuFindDirector
see state CurrentRecNo 3
see state MatchPos 1
see state RowCursor 1
click cmdMatch
beep
box warning "DIRECTOR SEARCH" "End of file!" OK
