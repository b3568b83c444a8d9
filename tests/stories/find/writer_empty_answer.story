# Writer search: an empty answer resets the screen with no word and drops the kept text.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " ""
see state WriterQuery ""
see state RowCursor 1
see state KeyFilePos 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click cmdMatch
see state CurrentRecNo 1
