# Sound search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Sound"
click cmdMatch
see lblHead "    Viewing Files by Sound"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Sound"
