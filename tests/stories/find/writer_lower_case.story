# Writer search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Written="nobody"
film 2 Title="Film 2" Written="pere"
film 3 Title="Film 3" Written="père"
film 4 Title="Film 4" Written="PÈRE"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
