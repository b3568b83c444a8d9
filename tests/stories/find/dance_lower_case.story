# Dance search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Choreography="nobody"
film 2 Title="Film 2" Choreography="pere"
film 3 Title="Film 3" Choreography="père"
film 4 Title="Film 4" Choreography="PÈRE"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
