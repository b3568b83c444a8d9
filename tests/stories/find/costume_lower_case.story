# Costume search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Costume="nobody"
film 2 Title="Film 2" Costume="pere"
film 3 Title="Film 3" Costume="père"
film 4 Title="Film 4" Costume="PÈRE"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
