# Dance search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Dance"
click cmdMatch
see lblHead "    Viewing Files by Choreograher"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Dance"
