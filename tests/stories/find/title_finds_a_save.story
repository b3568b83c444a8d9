# Title search finds what was saved a moment ago.
film 1 Title="Nobody"
film 2 Title="Nobody"
film 3 Title="Nobody"
start
click cmdNext
click cmdEdit
click txtTitle
clear
type "Karina"
click cmdSave
click cmdReset
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karina"
see state CurrentRecNo 2
