# A blank alone is a text like any other: it is between two names, not after the last.
film 1 Title="Alpha" Director="Zed"
film 2 Title="Beta"
film 3 Title="Gamma" Director="Yan Oz"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " " "
see state CurrentRecNo 3
see state MatchPos 4
see state DirectorQuery " "
