# Producer search on page 2 stays there.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click optnoteson
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
