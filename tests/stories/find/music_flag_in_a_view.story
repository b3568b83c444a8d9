# Music search with its flag set, chosen in a view behind record 1: it asks, and the position is 0.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
key Titlepra.Dat "c" 3
key Titlepra.Dat "d" 4
count Titlepra 2
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click cmdMatch
click cmdReset
click mnuByTitle
see state CurrentRecNo 3
see state KeyFilePos 1
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
see state CurrentRecNo 2
see state KeyFilePos 0
