# Title search: an empty answer resets the screen without a word and drops the stored text.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " ""
see state TitleQuery ""
see state RowCursor 1
see state KeyFilePos 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click cmdMatch
see state CurrentRecNo 1
