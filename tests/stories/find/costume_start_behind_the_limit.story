# Costume search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "Costume"
click cmdMatch
see lblHead "    Viewing Files by Costume Designer "
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "Costume"
