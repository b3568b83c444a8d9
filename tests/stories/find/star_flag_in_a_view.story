# Star search with its flag set, chosen in a view behind record 1: it asks, and the position is 0.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
key Titlepra.Dat "c" 3
key Titlepra.Dat "d" 4
count Titlepra 2
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click cmdMatch
click cmdReset
click mnuByTitle
see state CurrentRecNo 3
see state KeyFilePos 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
see state CurrentRecNo 2
see state KeyFilePos 0
