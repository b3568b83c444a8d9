# Director search's flag outlives another search but the title's.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
click cmdMatch
see state ResumeDirector 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeDirector 1
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " ""
see state ResumeDirector 0
