# Art search: Cancel resets the screen with no word and drops the kept text.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="Anna Karina"
film 3 Title="Film 3" SetDirection="Banana Split"
film 4 Title="Film 4" SetDirection="karina"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karin"
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " cancel
see state ArtQuery ""
see state RowCursor 1
see state KeyFilePos 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click cmdMatch
see state CurrentRecNo 1
