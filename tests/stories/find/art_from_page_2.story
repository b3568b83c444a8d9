# Art search on page 2 stays there.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="Anna Karina"
film 3 Title="Film 3" SetDirection="Banana Split"
film 4 Title="Film 4" SetDirection="karina"
start
click optnoteson
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
