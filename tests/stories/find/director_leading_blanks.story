# Director search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="karina"
film 3 Title="Film 3" Director="Anna Karina"
film 4 Title="Film 4" Director="Nobody"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state DirectorQuery " KARIN"
