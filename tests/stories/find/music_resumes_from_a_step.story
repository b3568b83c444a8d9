# Music search chosen again after a jump goes on from the film on the screen.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click cmdMatch
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
click mnuMusic
see state CurrentRecNo 4
see state RowCursor 3
