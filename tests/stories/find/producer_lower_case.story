# Producer search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Producer="nobody"
film 2 Title="Film 2" Producer="pere"
film 3 Title="Film 3" Producer="père"
film 4 Title="Film 4" Producer="PÈRE"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
