# Star search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Star1="nobody"
film 2 Title="Film 2" Star1="pere"
film 3 Title="Film 3" Star1="père"
film 4 Title="Film 4" Star1="PÈRE"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
