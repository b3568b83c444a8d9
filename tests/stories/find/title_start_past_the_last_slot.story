# Title search continued from past the last slot: nothing happens but the search's own heading.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Title"
click cmdMatch
see lblHead "    Viewing Files by Title"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Title"
