# Title search with its flag set, chosen in a view past record 1: it continues from the film on the screen, whatever
# the position.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
key Titlepra.Dat "c" 3
key Titlepra.Dat "d" 4
count Titlepra 2
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click cmdMatch
click cmdReset
click mnuByTitle
see state CurrentRecNo 3
see state KeyFilePos 1
click mnuFindTitle
see state CurrentRecNo 4
see state KeyFilePos 1
