# Star search's flag is cleared by another search.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click cmdMatch
see state ResumeStar 1
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " ""
see state ResumeStar 0
see state ResumeProducer 0
