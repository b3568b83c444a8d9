# A blank alone is a text like any other: it stands between two names, not behind the last.
film 1 Title="Alpha" Director="Zed"
film 2 Title="Beta"
film 3 Title="Gamma" Director="Yan Oz"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " " "
see state CurrentRecNo 3
see state MatchPos 4
see state DirectorQuery " "
