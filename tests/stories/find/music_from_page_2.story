# Music search on page 2 stays there.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click optnoteson
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
