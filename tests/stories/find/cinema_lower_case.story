# Cinema search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Cinematographer="nobody"
film 2 Title="Film 2" Cinematographer="pere"
film 3 Title="Film 3" Cinematographer="père"
film 4 Title="Film 4" Cinematographer="PÈRE"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "pÈr"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
