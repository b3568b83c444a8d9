# Star search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Star"
click cmdMatch
see lblHead "    Viewing Files by Stars"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Star"
