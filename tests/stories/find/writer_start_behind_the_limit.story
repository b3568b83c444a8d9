# Writer search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Writer"
click cmdMatch
see lblHead "    Viewing Files by Writer"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Writer"
