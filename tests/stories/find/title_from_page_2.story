# Title search on page 2 stays there.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click optnoteson
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
