# Star search finds what was saved a moment ago.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Nobody"
film 3 Title="Film 3" Star1="Nobody"
start
click cmdNext
click cmdEdit
click txtStar1(0)
clear
type "Karina"
click cmdSave
click cmdReset
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina"
see state CurrentRecNo 2
