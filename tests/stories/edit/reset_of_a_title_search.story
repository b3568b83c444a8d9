# Reset ends a title search.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "bra"
see state FindPending 1
see state MatchKind "Title"
click cmdReset
see state FindPending 0
see state SearchState 0
see state MatchKind ""
see txtTitle "Alien"
click cmdNext
see txtTitle "Brazil"
