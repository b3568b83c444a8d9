# Dance search chosen again after a jump goes on from the film on the screen.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
click cmdMatch
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
click mnuDance
see state CurrentRecNo 4
see state RowCursor 3
