# Writer search chosen again after a jump goes on from the film on the screen.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click cmdMatch
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
click mnuWriter
see state CurrentRecNo 4
see state RowCursor 3
