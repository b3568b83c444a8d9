# MPAA search: capitals on both sides, accented letters, too.
film 1 Title="Film 1" Rating="r"
film 2 Title="Film 2" Rating="x"
film 3 Title="Film 3" Rating="Ré"
film 4 Title="Film 4" Rating="RÉ"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "rÉ"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
