# Awards search on page 2 stays there.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click optnoteson
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
