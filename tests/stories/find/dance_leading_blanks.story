# Dance search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="karina"
film 3 Title="Film 3" Choreography="Anna Karina"
film 4 Title="Film 4" Choreography="Nobody"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state DanceQuery " KARIN"
