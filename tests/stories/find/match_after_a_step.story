# Match goes on after the film on the screen, which may be another than the hit.
film 1 Title="Film 1" Director="Aa"
film 2 Title="Film 2" Director="Aa"
film 3 Title="Film 3" Director="Aa"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
see state CurrentRecNo 1
click cmdNext
click cmdMatch
see state CurrentRecNo 3
see state RowCursor 2
