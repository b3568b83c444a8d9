# Director search on page 2 stays there.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click optnoteson
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
