# Art search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="karina"
film 3 Title="Film 3" SetDirection="Anna Karina"
film 4 Title="Film 4" SetDirection="Nobody"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state ArtQuery " KARIN"
