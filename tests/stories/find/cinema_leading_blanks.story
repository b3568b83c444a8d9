# Cinema search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="karina"
film 3 Title="Film 3" Cinematographer="Anna Karina"
film 4 Title="Film 4" Cinematographer="Nobody"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state CinemaQuery " KARIN"
