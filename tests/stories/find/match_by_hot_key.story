# Alt M is Match.
film 1 Title="Film 1" Director="Aa"
film 2 Title="Film 2" Director="Aa"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
key Alt+M
see state CurrentRecNo 2
see focus cmdMatch
