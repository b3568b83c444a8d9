# Director search finds what was saved a moment ago.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Nobody"
film 3 Title="Film 3" Director="Nobody"
start
click cmdNext
click cmdEdit
click txtDirector
clear
type "Karina"
click cmdSave
click cmdReset
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karina"
see state CurrentRecNo 2
