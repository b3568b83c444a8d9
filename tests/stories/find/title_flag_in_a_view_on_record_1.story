# Title search with its flag set, chosen in a view on record 1: it asks, and the position in the view starts afresh.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
key Titlepra.Dat "a" 3
key Titlepra.Dat "b" 1
count Titlepra 2
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "anna"
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
see state ResumeTitle 1
click mnuByTitle
click cmdNext
see state CurrentRecNo 1
see state KeyFilePos 2
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "banana"
see state KeyFilePos 0
see state CurrentRecNo 3
see txtTitle "Banana Split"
