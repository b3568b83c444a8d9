# Music search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Music"
click cmdMatch
see lblHead "    Viewing Files by Music Composer"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Music"
