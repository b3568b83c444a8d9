# Match without a search only turns to page 1.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdNext
click optnoteson
click cmdMatch
see lblPage "PAGE 1"
see optNotesoff.Value yes
see state CurrentRecNo 2
see state SearchState 0
see state RowCursor 0
