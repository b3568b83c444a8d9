# Producer search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Producer"
click cmdMatch
see lblHead "    Viewing Files by Producers"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Producer"
