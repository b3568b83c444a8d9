# Director search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Director="nobody"
film 2 Title="Film 2" Director="pere"
film 3 Title="Film 3" Director="père"
film 4 Title="Film 4" Director="PÈRE"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
