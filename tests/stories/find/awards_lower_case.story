# Awards search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Awards="nobody"
film 2 Title="Film 2" Awards="pere"
film 3 Title="Film 3" Awards="père"
film 4 Title="Film 4" Awards="PÈRE"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
