# Awards search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="karina"
film 3 Title="Film 3" Awards="Anna Karina"
film 4 Title="Film 4" Awards="Nobody"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state AwardsQuery " KARIN"
