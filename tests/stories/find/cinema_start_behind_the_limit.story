# Cinema search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Cinema"
click cmdMatch
see lblHead "    Viewing Files by Cinematographers"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Cinema"
