# A search finds what was saved a moment ago.
each SEARCH   FIELD    BOX         MENU            TITLE                 PROMPT
row  director Director txtDirector mnuFindDirector "Search For Director" "Enter Director. To Search: "
row  star     Star1    txtStar1(0) mnuFindStar     "Search For Star"     "Enter Star To Search: "

film 1 Title="Film 1" {FIELD}="Nobody"
film 2 Title="Film 2" {FIELD}="Nobody"
film 3 Title="Film 3" {FIELD}="Nobody"
start
click cmdNext
click cmdEdit
click {BOX}
clear
type "Karina"
click cmdSave
click cmdReset
click {MENU}
input "{TITLE}" "{PROMPT}" "karina"
see state CurrentRecNo 2
