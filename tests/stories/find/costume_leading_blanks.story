# Costume search: blanks in front of the answer are part of what is sought, so that a field that begins with the word is passed over.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="karina"
film 3 Title="Film 3" Costume="Anna Karina"
film 4 Title="Film 4" Costume="Nobody"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state CostumeQuery " KARIN"
