# Title search: ignores case, accented letters included.
film 1 Title="nobody"
film 2 Title="pere"
film 3 Title="père"
film 4 Title="PÈRE"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
