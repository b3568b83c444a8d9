# Star search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="karina"
film 3 Title="Film 3" Star1="Anna Karina"
film 4 Title="Film 4" Star1="Nobody"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state StarQuery " KARIN"
