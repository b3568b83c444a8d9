# Writer search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="karina"
film 3 Title="Film 3" Written="Anna Karina"
film 4 Title="Film 4" Written="Nobody"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state WriterQuery " KARIN"
