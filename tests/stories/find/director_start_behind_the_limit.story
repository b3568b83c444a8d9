# Director search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Director"
click cmdMatch
see lblHead "    Viewing Files by Director"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Director"
