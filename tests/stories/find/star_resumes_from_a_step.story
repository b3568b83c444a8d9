# Star search chosen again after a jump goes on from the film on the screen.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click cmdMatch
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
click mnuFindStar
see state CurrentRecNo 4
see state RowCursor 3
