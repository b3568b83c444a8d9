# Writer search's flag is cleared by another search.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click cmdMatch
see state ResumeWriter 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeWriter 0
see state ResumeStar 0
