# Cinema search chosen again after a jump goes on from the film on the screen.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click cmdMatch
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
click mnuCinema
see state CurrentRecNo 4
see state RowCursor 3
