# Dance search on page 2 stays there.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click optnoteson
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
see lblPage "PAGE 2"
see state CurrentRecNo 2
