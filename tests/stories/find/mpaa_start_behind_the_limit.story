# MPAA search gone on with from behind the last slot: nothing happens but the search's own heading.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
key Titlepra.Dat "Gone" 99
count Titlepra 1
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click mnuByTitle
see state CurrentRecNo 99
see state MatchKind "MPAA"
click cmdMatch
see lblHead "    Viewing Files by MPAA Or TV Ratings"
see state CurrentRecNo 100
see state ScanRecNo 100
see state RowCursor 1
see state SearchState 1
see state MatchKind "MPAA"
