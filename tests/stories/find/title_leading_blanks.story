# Title search: leading blanks of the answer are part of the sought text, so that a field that begins with the word
# is skipped.
film 1 Title="Nobody"
film 2 Title="karina"
film 3 Title="Anna Karina"
film 4 Title="Nobody"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " " karin"
see state CurrentRecNo 3
see state MatchPos 5
see state TitleQuery " KARIN"
