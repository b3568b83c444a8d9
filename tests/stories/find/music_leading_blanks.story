# Music search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="karina"
film 3 Title="Film 3" Music="Anna Karina"
film 4 Title="Film 4" Music="Nobody"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state MusicQuery " KARIN"
