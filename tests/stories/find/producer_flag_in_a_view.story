# Producer search with its flag set, chosen in a view behind record 1: it asks, and the position is 0.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
key Titlepra.Dat "c" 3
key Titlepra.Dat "d" 4
count Titlepra 2
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click cmdMatch
click cmdReset
click mnuByTitle
see state CurrentRecNo 3
see state KeyFilePos 1
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
see state CurrentRecNo 2
see state KeyFilePos 0
