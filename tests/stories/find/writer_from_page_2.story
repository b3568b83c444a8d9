# Writer search on page 2 stays there.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click optnoteson
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
