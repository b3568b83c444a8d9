# Costume search on page 2 stays there.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click optnoteson
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
