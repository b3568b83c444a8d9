# Cinema search on page 2 stays there.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click optnoteson
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
