# Music search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Music="nobody"
film 2 Title="Film 2" Music="pere"
film 3 Title="Film 3" Music="père"
film 4 Title="Film 4" Music="PÈRE"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
